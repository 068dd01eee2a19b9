#include "input/typing_hint.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "number/fatal_stop.h"
#include "number/text.h"
#include "output/tavi_error.h"

namespace tavi {

namespace {

struct Hint {
  std::string_view errorKey;
  std::string_view hint;
};
constexpr std::array<std::string_view, 4> symbols{"π", "x", "y", "z"};
constexpr std::array hints{
    Hint{TaviError::fractionIncomplete, "hintFraction"},
    Hint{TaviError::inputZeroInDenominator, "hintZero"},
    Hint{TaviError::toManyNaturalConstantsInSubstring, "hintOnePi"},
    Hint{TaviError::naturalConstantInWrongPositionOfSubstring, "hintOrder"},
    Hint{TaviError::toManyVariablesInSubstring, "hintOneLetter"},
};

std::string_view missingHint(Mode mode, const std::vector<std::size_t>& fields) {
  if (mode == Mode::root) return "hintRadicand";
  if (fields.size() > 1) return "hintBaseAndExponent";
  return fields.front() == 0 ? "hintExponent" : "hintBase";
}

// Of the symbol that a text begins with; 0 where it begins with none.
std::size_t symbolLength(std::string_view text) {
  const auto* const found =
      std::ranges::find_if(symbols, [text](std::string_view symbol) { return text.starts_with(symbol); });
  return found == symbols.end() ? 0 : found->size();
}

// Of a text that is no number.
std::string_view numberHint(const std::string& text) {
  const std::vector<std::string_view> sides = splitDroppingEmpty(text, '/');
  const auto hasDigit = [](std::string_view side) {
    return side.find_first_of("0123456789") != std::string_view::npos;
  };
  const auto hasPoints = [](std::string_view side) { return std::ranges::count(side, '.') > 1; };
  if (std::ranges::count(text, '/') > 1) return "hintOneBar";
  if (std::ranges::any_of(sides, hasPoints)) return "hintOnePoint";
  return std::ranges::all_of(sides, hasDigit) ? "hintNumber" : "hintDigit";
}

std::string_view fieldHint(std::string_view errorKey, const std::string& text) {
  if (errorKey == TaviError::inputParameterError) return numberHint(text);
  const auto* const found = std::ranges::find(hints, errorKey, &Hint::errorKey);
  return found == hints.end() ? "" : found->hint;
}

// How far one side of a fraction can be read: a minus, digits with one point, a symbol.
std::size_t readableLength(std::string_view side) {
  std::size_t at = side.starts_with('-') ? 1 : 0;
  bool isPointAllowed = true;
  for (; at < side.size(); ++at) {
    const bool isDigit = side[at] >= '0' && side[at] <= '9';
    if (!isDigit && (side[at] != '.' || !std::exchange(isPointAllowed, false))) break;
  }
  return at + symbolLength(side.substr(at));
}

}  // namespace

std::string_view faultHint(std::optional<Mode> mode, const TypedTask& task) {
  if (!task.errorKey || !mode) return "";
  if (task.errorKey == TaviError::notEnoughInputValues) return missingHint(*mode, task.fieldsAtFault);
  return fieldHint(*task.errorKey, elementAt(task.request.texts, task.fieldsAtFault.front()));
}

std::string_view typingHint(std::optional<Mode> mode, const TypedTask& task) {
  if (mode && task.errorKey == TaviError::notEnoughInputValues) {
    for (const std::string& text : task.request.texts) {
      if (text.empty()) continue;
      const TypedTask field = typedTask({.texts = {text}, .requiredAmount = 1});
      if (field.errorKey) return fieldHint(*field.errorKey, text);
    }
  }
  return faultHint(mode, task);
}

std::size_t faultPlace(std::string_view text) {
  for (std::size_t start = 0;;) {
    const std::string_view rest = text.substr(start);
    const std::size_t bar = start == 0 ? std::min(rest.find('/'), rest.size()) : rest.size();
    const std::string_view side = rest.substr(0, bar);
    const std::size_t length = readableLength(side);
    if (length < side.size()) {
      const std::size_t behind = std::max<std::size_t>(symbolLength(side.substr(length)), 1);
      return start + length + behind;
    }
    const bool isEmpty = side.find_first_not_of("-.") == std::string_view::npos;
    if (isEmpty || bar == rest.size()) return start + length;
    start += bar + 1;
  }
}

}  // namespace tavi
