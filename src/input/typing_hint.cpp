#include "input/typing_hint.h"

#include <algorithm>
#include <array>
#include <string>

#include "number/fatal_stop.h"
#include "number/text.h"
#include "output/tavi_error.h"

namespace tavi {

namespace {

struct Hint {
  std::string_view errorKey;
  std::string_view hint;
};
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

// Of a text that is no number.
std::string_view numberHint(const std::string& text) {
  const std::vector<std::string_view> sides = splitDroppingEmpty(text, '/');
  const auto hasDigit = [](std::string_view side) {
    return side.find_first_of("0123456789") != std::string_view::npos;
  };
  if (std::count(text.begin(), text.end(), '/') > 1) return "hintOneBar";
  return std::ranges::all_of(sides, hasDigit) ? "hintNumber" : "hintDigit";
}

}  // namespace

std::string_view typingHint(std::optional<Mode> mode, const TypedTask& task) {
  if (!task.errorKey || !mode) return "";
  if (task.errorKey == TaviError::notEnoughInputValues) return missingHint(*mode, task.fieldsAtFault);
  if (task.errorKey == TaviError::inputParameterError) {
    return numberHint(elementAt(task.request.texts, task.fieldsAtFault.front()));
  }
  const auto* const found = std::ranges::find(hints, *task.errorKey, &Hint::errorKey);
  return found == hints.end() ? "" : found->hint;
}

}  // namespace tavi
