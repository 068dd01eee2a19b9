#include "typeset/symbols.h"

#include <algorithm>
#include <array>

namespace tavi::typeset {
namespace {

constexpr Command symbol(std::string_view name, char32_t character) {
  return {.name = name, .kind = CommandKind::symbol, .symbol = character};
}
constexpr Command space(std::string_view name, double mu) {
  return {.name = name, .kind = CommandKind::space, .mu = mu};
}
constexpr Command function(std::string_view name) {
  return {.name = name, .kind = CommandKind::function};
}

// In the order of the names' bytes.
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
    {.name = "color", .kind = CommandKind::color},
    function("cos"),
    function("cot"),
    symbol("delta", U'δ'),
    symbol("div", U'÷'),
    symbol("epsilon", U'ϵ'),
    symbol("eta", U'η'),
    function("exp"),
    {.name = "frac", .kind = CommandKind::fraction},
    symbol("gamma", U'γ'),
    symbol("ge", U'≥'),
    symbol("geq", U'≥'),
    symbol("infty", U'∞'),
    symbol("iota", U'ι'),
    symbol("kappa", U'κ'),
    symbol("lambda", U'λ'),
    symbol("le", U'≤'),
    {.name = "left", .kind = CommandKind::left},
    symbol("leq", U'≤'),
    function("lg"),
    function("ln"),
    function("log"),
    {.name = "mathrm", .kind = CommandKind::upright},
    symbol("mu", U'μ'),
    symbol("ne", U'≠'),
    symbol("neq", U'≠'),
    symbol("nu", U'ν'),
    symbol("omega", U'ω'),
    symbol("omicron", U'ο'),
    symbol("phi", U'ϕ'),
    symbol("pi", U'π'),
    symbol("pm", U'±'),
    symbol("psi", U'ψ'),
    space("qquad", 36),
    space("quad", 18),
    symbol("rho", U'ρ'),
    {.name = "right", .kind = CommandKind::right},
    symbol("sigma", U'σ'),
    function("sin"),
    {.name = "sqrt", .kind = CommandKind::root},
    function("tan"),
    symbol("tau", U'τ'),
    {.name = "text", .kind = CommandKind::text},
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

struct ClassRange {
  char32_t first;
  char32_t last;
  AtomClass atomClass;
};

using enum AtomClass;

// The classes of Unicode's mathematical characters; what is not listed is ordinary.
constexpr auto classRanges = std::to_array<ClassRange>({
    {U'!', U'!', closing},       {U'(', U'(', opening},      {U')', U')', closing},
    {U'+', U'+', binary},        {U',', U',', punctuation},  {U';', U';', punctuation},
    {U'<', U'>', relation},      {U'[', U'[', opening},      {U']', U']', closing},
    {U'{', U'{', opening},       {U'}', U'}', closing},      {U'±', U'±', binary},
    {U'·', U'·', binary},        {U'×', U'×', binary},       {U'÷', U'÷', binary},
    {0x2020, 0x2022, binary},    {0x2190, 0x21FF, relation}, {0x2208, 0x220D, relation},
    {0x220F, 0x2211, operation}, {0x2212, 0x2219, binary},   {0x221D, 0x221D, relation},
    {0x2223, 0x2226, relation},  {0x2227, 0x222A, binary},   {0x222B, 0x2233, operation},
    {0x2236, 0x2237, relation},  {0x2238, 0x2238, binary},   {0x2239, 0x223D, relation},
    {0x223E, 0x223E, binary},    {0x2240, 0x2240, binary},   {0x2241, 0x228B, relation},
    {0x228C, 0x228E, binary},    {0x228F, 0x2292, relation}, {0x2293, 0x22A1, binary},
    {0x22A2, 0x22A3, relation},  {0x22A6, 0x22B8, relation}, {0x22BA, 0x22BD, binary},
    {0x22C0, 0x22C3, operation}, {0x22C4, 0x22C7, binary},   {0x22C8, 0x22C8, relation},
    {0x22C9, 0x22CC, binary},    {0x22CD, 0x22CD, relation}, {0x22CE, 0x22CF, binary},
    {0x22D0, 0x22D1, relation},  {0x22D2, 0x22D3, binary},   {0x22D4, 0x22EE, relation},
    {0x22F0, 0x22FF, relation},  {0x2308, 0x2308, opening},  {0x2309, 0x2309, closing},
    {0x230A, 0x230A, opening},   {0x230B, 0x230B, closing},  {0x27E8, 0x27E8, opening},
    {0x27E9, 0x27E9, closing},   {0x27F0, 0x297F, relation},
});

AtomClass classOf(char32_t character) {
  const auto* const range = std::ranges::lower_bound(classRanges, character, {}, &ClassRange::last);
  return range != classRanges.end() && range->first <= character ? range->atomClass : ordinary;
}

// Unicode's alphabets of mathematical italic letters.
char32_t italic(char32_t character) {
  if (character == U'h') return 0x210E;  // encoded before the alphabet, as Planck's constant
  if (character >= U'A' && character <= U'Z') return 0x1D434 + (character - U'A');
  if (character >= U'a' && character <= U'z') return 0x1D44E + (character - U'a');
  if (character >= U'α' && character <= U'ω') return 0x1D6FC + (character - U'α');
  constexpr std::u32string_view variants = U"ϵϑϰϕϱϖ";
  const auto variant = variants.find(character);
  return variant == std::u32string_view::npos ? character : 0x1D716 + static_cast<char32_t>(variant);
}

std::optional<std::uint8_t> hexDigit(char32_t character) {
  if (character >= U'0' && character <= U'9') return static_cast<std::uint8_t>(character - U'0');
  if (character >= U'a' && character <= U'f') return static_cast<std::uint8_t>(character - U'a' + 10);
  if (character >= U'A' && character <= U'F') return static_cast<std::uint8_t>(character - U'A' + 10);
  return std::nullopt;
}

}  // namespace

const Command* findCommand(std::string_view name) {
  const auto* const command = std::ranges::lower_bound(commands, name, {}, &Command::name);
  return command != commands.end() && command->name == name ? &*command : nullptr;
}

Symbol symbolFor(char32_t character, bool isUpright) {
  switch (character) {
    case U'-':
      return {.source = character, .drawn = U'−', .atomClass = binary};
    case U'*':
      return {.source = character, .drawn = U'∗', .atomClass = binary};
    case U':':
      return {.source = character, .drawn = U'∶', .atomClass = relation};
    default:
      return {.source = character,
              .drawn = isUpright ? character : italic(character),
              .atomClass = classOf(character),
              .isUpright = isUpright};
  }
}

std::optional<Rgb> colorFor(std::u32string_view text) {
  if (text == U"black") return Rgb{};
  if (text == U"red") return Rgb{.red = 0xff};
  if (text == U"green") return Rgb{.green = 0xff};
  if (text == U"blue") return Rgb{.blue = 0xff};
  if (text == U"gray") return Rgb{0x80, 0x80, 0x80};
  if ((text.size() != 4 && text.size() != 7) || text[0] != U'#') return std::nullopt;
  const std::size_t width = text.size() / 3;
  std::array<std::uint8_t, 3> channels{};
  for (std::size_t channel = 0; channel < 3; ++channel) {
    const auto high = hexDigit(text[1 + channel * width]);
    const auto low = hexDigit(text[channel * width + width]);
    if (!high || !low) return std::nullopt;
    channels[channel] = static_cast<std::uint8_t>(*high * 16 + *low);
  }
  return Rgb{channels[0], channels[1], channels[2]};
}

}  // namespace tavi::typeset
