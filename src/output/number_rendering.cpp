#include <cmath>

#include "number/fatal_stop.h"
#include "number/number_text.h"
#include "number/text.h"
#include "output/string_output.h"

namespace tavi {

namespace {

constexpr double zeroLimit = 1e-10;
constexpr double infinityLimit = 1e12;

constexpr std::string_view infinity = "\\infty";
constexpr std::string_view negativeInfinity = "-\\infty";

// Puts `factor` behind `number`, with `blank` between them; a factor of 1 or -1 is not written: its 1 gives
// way.
void appendFactor(std::string& number, std::string_view factor, std::string_view blank) {
  if (number == "1" || number == "-1") {
    number.pop_back();
  } else {
    number += blank;
  }
  number += factor;
}

void appendUnit(std::string& text, std::string_view unit) {
  if (unit.empty()) return;
  text += ' ';
  text += unit;
}

std::string variablePower(std::string_view variable, double power) {
  if (power == 1) return std::string(variable);
  return joined({variable, "^{", doubleText(power), "}"});
}

// One side of the fraction of a digit, its constants behind it.
std::string side(std::string number, std::span<const NaturalConstant> constants) {
  for (const NaturalConstant& constant : constants) appendFactor(number, constant.latex, "");
  return number;
}

// The numeric part of a digit, its constants included.
std::string numericPart(const Digit& digit, double z, const DigitStyle& style) {
  const auto shown = [&style](double number) { return style.keepSigns ? number : std::abs(number); };
  const double n = digit.n;
  const bool isNegative = !style.keepSigns && ((z < 0 && n > 0) || (z > 0 && n < 0));
  const std::string_view sign = isNegative ? "-" : "";

  std::string numerator = side(decimalText(shown(z), style.maximumFractionDigits), digit.zConstants);
  if (n == 1 && digit.nConstants.empty() && !style.forceFraction) return numerator.insert(0, sign);
  const double shortened = roundedToSixDigits(shown(n));
  if (!std::isfinite(shortened)) fatalStop("a denominator that is no finite number");
  const std::string denominator = side(decimalText(shortened, style.maximumFractionDigits), digit.nConstants);
  return joined({sign, "\\frac{", numerator, "}{", denominator, "}"});
}

}  // namespace

std::string TaviStringOutput::digitLatex(const Digit& digit, const DigitStyle& style) {
  const double value = required(digit.value(), "an unknown number cannot be written");
  std::string result;
  if (std::abs(value) < zeroLimit && !style.keepSigns) {
    result = "0";
  } else if (value > infinityLimit) {
    result = infinity;
  } else if (value < -infinityLimit) {
    result = negativeInfinity;
  } else {
    result = numericPart(digit, *digit.z, style);
  }
  if (const auto variable = variableLatex(digit)) appendFactor(result, *variable, " ");
  if (style.withBrackets.value_or(result.starts_with('-'))) {
    result = joined({"\\left(", result, "\\right)"});
  }
  appendUnit(result, style.unit);
  return result;
}

std::string TaviStringOutput::numberLatex(double value, const NumberStyle& style) {
  std::string result;
  if (std::abs(value) < zeroLimit) {
    result = "0";
  } else if (style.convertToInfinity && value > infinityLimit) {
    result = infinity;
  } else if (style.convertToInfinity && value < -infinityLimit) {
    result = negativeInfinity;
  } else {
    std::string constants;
    for (const NaturalConstant& constant : style.constants) constants += constant.latex;
    const std::string number = decimalText(value, style.maximumFractionDigits);
    if (value < 0 && !style.noBrackets) {
      const bool isBareSign = value == -1 && !constants.empty();
      result = joined({"(", isBareSign ? "-" : number, constants, ")"});
    } else if (value == 1 && !constants.empty()) {
      result = constants;
    } else {
      result = number + constants;
    }
  }
  if (!style.variable.empty()) appendFactor(result, style.variable, " ");
  appendUnit(result, style.unit);
  return result;
}

std::optional<std::string> TaviStringOutput::variableLatex(const Digit& digit) {
  if (digit.zVariable.empty() && digit.nVariable.empty()) return std::nullopt;
  const std::string numerator =
      digit.zVariable.empty() ? "1" : variablePower(digit.zVariable, digit.powerOfZVariable);
  if (digit.nVariable.empty()) return " " + numerator;
  const std::string denominator = variablePower(digit.nVariable, digit.powerOfNVariable);
  return joined({"\\frac{", numerator, "}{", denominator, "}"});
}

std::string TaviStringOutput::cancelledFractionLatex(const Digit& digit,
                                                     std::span<const NaturalConstant> constants,
                                                     double divisor) {
  const double z = required(digit.z, "an unknown number cannot be cancelled");
  const std::string by = numberLatex(divisor, {.constants = constants});
  const std::string numerator = numberLatex(z, {.constants = digit.zConstants});
  const std::string denominator = numberLatex(digit.n, {.constants = digit.nConstants});
  const std::string fraction = joined({"\\frac{", numerator, " : ", by, "}{", denominator, " : ", by, "}"});
  return fraction + variableLatex(digit).value_or("");
}

}  // namespace tavi
