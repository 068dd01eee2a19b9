#pragma once

#include <string_view>

namespace tavi {

class TaviDigitAnalyser {
 public:
  TaviDigitAnalyser() = delete;

  /// How many decimal places the fraction of the two "%g" texts needs until both parts are integers: a whole
  /// number, 0.0 for none. A fraction part in exponent notation needs none, so that 1.5e-05 stays a decimal.
  static double decimalPlaces(std::string_view zText, std::string_view nText);
};

}  // namespace tavi
