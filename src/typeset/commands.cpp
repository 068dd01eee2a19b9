#include "typeset/commands.h"

#include <algorithm>
#include <array>

namespace tavi::typeset {
namespace {

constexpr Command symbol(std::string_view name, char32_t character) {
  return {.name = name, .read = Symbol::read, .character = character};
}
constexpr Command space(std::string_view name, double mu) {
  return {.name = name, .read = Space::read, .mu = mu};
}
constexpr Command function(std::string_view name) {
  return {.name = name, .read = Text::readFunction};
}

// A line for each command, in the order of the names' bytes.
constexpr auto commands = std::to_array<Command>({
    space(" ", 6),
    space("!", -3),
    symbol("#", U'#'),
    symbol("$", U'$'),
    symbol("%", U'%'),
    symbol("&", U'&'),
    space(",", 3),
    space(":", 4),
    space(";", 5),
    symbol("Alpha", U'Α'),
    symbol("Beta", U'Β'),
    symbol("Chi", U'Χ'),
    symbol("Delta", U'Δ'),
    symbol("Epsilon", U'Ε'),
    symbol("Eta", U'Η'),
    symbol("Gamma", U'Γ'),
    symbol("Iota", U'Ι'),
    symbol("Kappa", U'Κ'),
    symbol("Lambda", U'Λ'),
    symbol("Mu", U'Μ'),
    symbol("Nu", U'Ν'),
    symbol("Omega", U'Ω'),
    symbol("Omicron", U'Ο'),
    symbol("Phi", U'Φ'),
    symbol("Pi", U'Π'),
    symbol("Psi", U'Ψ'),
    symbol("Rho", U'Ρ'),
    symbol("Sigma", U'Σ'),
    symbol("Tau", U'Τ'),
    symbol("Theta", U'Θ'),
    symbol("Upsilon", U'Υ'),
    symbol("Xi", U'Ξ'),
    symbol("Zeta", U'Ζ'),
    symbol("_", U'_'),
    symbol("alpha", U'α'),
    symbol("approx", U'≈'),
    symbol("beta", U'β'),
    symbol("cdot", U'⋅'),
    symbol("chi", U'χ'),
    {.name = "color", .read = Group::readColored},
    function("cos"),
    function("cot"),
    symbol("delta", U'δ'),
    symbol("div", U'÷'),
    symbol("epsilon", U'ϵ'),
    symbol("eta", U'η'),
    function("exp"),
    {.name = "frac", .read = Fraction::read},
    symbol("gamma", U'γ'),
    symbol("ge", U'≥'),
    symbol("geq", U'≥'),
    symbol("infty", U'∞'),
    symbol("iota", U'ι'),
    symbol("kappa", U'κ'),
    symbol("lambda", U'λ'),
    symbol("ldots", U'…'),
    symbol("le", U'≤'),
    {.name = "left", .read = Fence::read},
    symbol("leq", U'≤'),
    function("lg"),
    function("ln"),
    function("log"),
    {.name = "mathrm", .read = Group::readUpright},
    symbol("mu", U'μ'),
    symbol("ne", U'≠'),
    symbol("neq", U'≠'),
    symbol("nu", U'ν'),
    symbol("omega", U'ω'),
    symbol("omicron", U'ο'),
    {.name = "overline", .read = Overline::read},
    symbol("phi", U'ϕ'),
    symbol("pi", U'π'),
    symbol("pm", U'±'),
    symbol("psi", U'ψ'),
    space("qquad", 36),
    space("quad", 18),
    symbol("rho", U'ρ'),
    {.name = "right", .read = Fence::readStrayRight},
    symbol("sigma", U'σ'),
    function("sin"),
    {.name = "sqrt", .read = Radical::read},
    function("tan"),
    symbol("tau", U'τ'),
    {.name = "text", .read = Text::read},
    symbol("theta", U'θ'),
    symbol("times", U'×'),
    symbol("upsilon", U'υ'),
    symbol("varepsilon", U'ε'),
    symbol("varkappa", U'ϰ'),
    symbol("varphi", U'φ'),
    symbol("varpi", U'ϖ'),
    symbol("varrho", U'ϱ'),
    symbol("varsigma", U'ς'),
    symbol("vartheta", U'ϑ'),
    symbol("xi", U'ξ'),
    symbol("zeta", U'ζ'),
    symbol("{", U'{'),
    symbol("}", U'}'),
});
static_assert(std::ranges::is_sorted(commands, {}, &Command::name));

}  // namespace

const Command* findCommand(std::string_view name) {
  if (name.empty()) return nullptr;
  // Few have the same first letter, and of these few the same length.
  const auto firstLetter = [](const Command& command) { return command.name.front(); };
  const auto* const first = std::ranges::lower_bound(commands, name.front(), {}, firstLetter);
  const auto* const last = std::ranges::upper_bound(first, commands.end(), name.front(), {}, firstLetter);
  const auto* const command = std::ranges::find(first, last, name, &Command::name);
  return command != last ? command : nullptr;
}

}  // namespace tavi::typeset
