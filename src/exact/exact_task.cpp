#include "exact/exact_task.h"

#include <algorithm>
#include <array>
#include <utility>

#include "input/term_reader.h"
#include "number/text.h"
#include "output/tavi_error.h"

namespace tavi::exact {

namespace {

constexpr std::size_t longestText = 100'000;

struct SymbolName {
  std::string_view typed, latex;
};
constexpr std::array<SymbolName, symbolCount> symbolNames{
    {{"π", "\\pi"}, {"x", "x"}, {"y", "y"}, {"z", "z"}}};

// What was read; with an error key all else is to be ignored.

struct SideReading {
  ExactSide side{};
  std::optional<std::string> errorKey{};
};

struct TermReading {
  std::optional<ExactTerm> term{};  // absent where nothing but brackets stands in the field
  std::optional<std::string> errorKey{};
};

// Digits with at most one point among them, which may stand at either end.
bool isDecimal(std::string_view text) {
  return text.find_first_not_of("0123456789.") == std::string_view::npos &&
         text.find_first_of("0123456789") != std::string_view::npos && std::ranges::count(text, '.') <= 1;
}

SideReading readSide(std::string_view text) {
  if (auto key = analyseSubstring(std::string(text)).errorKey) return {.errorKey = std::move(key)};

  ExactSide side;
  for (std::size_t i = 0; i < symbolCount; ++i) {
    if (!text.ends_with(symbolNames[i].typed)) continue;
    side.symbol = static_cast<Symbol>(i);
    text.remove_suffix(symbolNames[i].typed.size());
  }
  const bool isNegative = text.starts_with('-');
  if (isNegative || text.starts_with('+')) text.remove_prefix(1);
  if (text.empty()) text = "1";
  if (!isDecimal(text)) return {.errorKey = std::string(TaviError::inputParameterError)};

  const std::size_t point = std::min(text.find('.'), text.size());
  std::string_view whole = text.substr(0, point);
  const std::string_view fraction = text.substr(std::min(point + 1, text.size()));
  Integer scale(10);
  fmpz_pow_ui(scale, scale, fraction.size());
  Integer digits;
  fmpz_set_str(digits, joined({whole, fraction}).c_str(), 10);
  side.number = Rational(digits, scale);
  if (isNegative) side.number = -side.number;

  whole.remove_prefix(std::min(whole.find_first_not_of('0'), whole.size()));
  std::string number = joined({whole.empty() ? "0" : whole, fraction.empty() ? "" : ".", fraction});
  if (side.symbol && number == "1") number.clear();
  side.latex = joined({isNegative ? "-" : "", number, side.symbol ? latexOf(*side.symbol) : ""});
  return {.side = std::move(side)};
}

TermReading readTerm(std::string_view field) {
  std::string text(field);
  std::erase_if(text, [](char character) { return character == '(' || character == ')'; });
  const bool isFraction = text.find('/') != std::string::npos;
  const std::vector<std::string_view> pieces = splitDroppingEmpty(text, '/');
  if (isFraction && pieces.size() < 2) return {.errorKey = std::string(TaviError::fractionIncomplete)};
  if (pieces.empty()) return {};

  SideReading above = readSide(pieces.front());
  if (above.errorKey) return {.errorKey = std::move(above.errorKey)};
  ExactTerm term{.above = std::move(above.side)};
  if (isFraction) {
    SideReading below = readSide(pieces.back());
    if (below.errorKey) return {.errorKey = std::move(below.errorKey)};
    if (below.side.number == 0) return {.errorKey = std::string(TaviError::inputZeroInDenominator)};
    term.below = std::move(below.side);
  }
  return {.term = std::move(term)};
}

}  // namespace

std::string_view latexOf(Symbol symbol) {
  return symbolNames[static_cast<std::size_t>(symbol)].latex;
}

std::string asBase(const std::string& latex) {
  const bool isNumber = isDecimal(latex);
  const bool isSymbol =
      std::ranges::any_of(symbolNames, [&](const auto& name) { return name.latex == latex; });
  if (isNumber || isSymbol) return latex;
  if (latex.find("\\frac") == std::string::npos) return joined({"(", latex, ")"});
  return joined({"\\left(", latex, "\\right)"});
}

Value ExactSide::value() const {
  Value value = Value::of(number);
  if (symbol && value.sign != 0) value.product.exponents[static_cast<std::size_t>(*symbol)] = 1;
  return value;
}

Value ExactTerm::value() const {
  return below ? multiplied(above.value(), raised(below->value(), Rational(-1))) : above.value();
}

std::string ExactTerm::latex() const {
  return below ? joined({"\\frac{", above.latex, "}{", below->latex, "}"}) : above.latex;
}

std::string ExactTask::latex() const {
  const std::string radicand = second.latex();
  const std::string index = first.latex();
  if (mode == Mode::power) return joined({asBase(radicand), "^{", index, "}"});
  return index == "2" ? joined({"\\sqrt{", radicand, "}"}) : joined({"\\sqrt[", index, "]{", radicand, "}"});
}

Value ExactTask::exponentOf(const Value& firstValue) const {
  if (mode == Mode::power) return firstValue;
  return firstValue.sign == 0 ? Value::of(Fault::rootWithIndexZero) : raised(firstValue, Rational(-1));
}

std::variant<ExactTask, InputError> readTask(Mode mode, std::string_view first, std::string_view second) {
  if (first.empty() && mode == Mode::root) first = "2";
  const std::array<std::string_view, 2> fields{first, second};

  InputError missing{std::string(TaviError::notEnoughInputValues), {}};
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (fields[i].empty()) missing.fields.push_back(i);
  }
  if (!missing.fields.empty()) return missing;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (fields[i].size() > longestText || std::ranges::count(fields[i], '/') > 1) {
      return InputError{std::string(TaviError::inputParameterError), {i}};
    }
  }

  std::array<TermReading, 2> terms;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    terms[i] = readTerm(fields[i]);
    if (terms[i].errorKey) return InputError{*std::move(terms[i].errorKey), {i}};
  }
  for (std::size_t i = 0; i < terms.size(); ++i) {
    if (!terms[i].term) return InputError{std::string(TaviError::inputParameterError), {i}};
  }
  return ExactTask{mode, *std::move(terms[0].term), *std::move(terms[1].term)};
}

}  // namespace tavi::exact
