#pragma once

#include <string_view>

namespace tavi {

/// The keys of what can be wrong with an input, odd spellings included: they are data.
struct TaviError {
  TaviError() = delete;

  static constexpr std::string_view notEnoughInputValues = "notEnoughInputValues";
  static constexpr std::string_view inputParameterError = "inputParameterError";
  static constexpr std::string_view fractionIncomplete = "fractionIncomplete";
  static constexpr std::string_view inputZeroInDenominator = "inputZeroInDenominator";
  static constexpr std::string_view toManyNaturalConstantsInSubstring = "toManyNaturalConstantsInSubstring";
  static constexpr std::string_view naturalConstantInWrongPositionOfSubstring =
      "naturalConstantInWrongPositionOfSubstring";
  static constexpr std::string_view toManyVariablesInSubstring = "toManyVariablesInSubstring";

  // A task that can be read but not worked out.
  static constexpr std::string_view calculationTooLong = "calculationTooLong";
  static constexpr std::string_view calculationOutOfRange = "calculationOutOfRange";

  static constexpr std::string_view oppositionError = "oppositionError";

  // These carry their limits behind them, separated by §.
  static constexpr std::string_view mustBeBiggerThanXAndLessThanY = "mustBeBiggerThanXAndLessThanY";
  static constexpr std::string_view mustBeGreatherThanX = "mustBeGreatherThanX";
  static constexpr std::string_view mustBeLessThanX = "mustBeLessThanX";
};

}  // namespace tavi
