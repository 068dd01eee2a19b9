#include "number/math_operation.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numeric>

#include "number/fatal_stop.h"
#include "number/number_text.h"
#include "number/text.h"
#include "output/string_output.h"

namespace tavi {

namespace {

// The greatest common divisor of both numbers truncated to integers; 1 if there is none above it.
std::int64_t commonDivisor(double z, double n) {
  const double smaller = std::min(std::abs(z), std::abs(n));
  if (truncatedToInt64(smaller) < 2) fatalStop("no divisor can be searched below 2");
  // Unsigned, since the size of the least 64-bit integer is no signed one.
  const auto size = [](double value) {
    const auto integer = static_cast<std::uint64_t>(truncatedToInt64(value));
    return value < 0 ? 0 - integer : integer;
  };
  return static_cast<std::int64_t>(std::gcd(size(z), size(n)));
}

}  // namespace

TaviMathOperation::TaviMathOperation(TaviStringOutput& output) : outputHelper(output) {}

TaviMathOperation& TaviMathOperation::shared() {
  static TaviMathOperation instance(TaviStringOutput::shared());
  return instance;
}

std::optional<Cancellation> TaviMathOperation::cancelDown(const Digit& digit) {
  divisor = 1;
  if (!digit.z || std::isinf(*digit.z)) return std::nullopt;
  double reducedZ = *digit.z;
  double reducedN = digit.n;
  std::int64_t found = 1;
  if (std::abs(reducedZ) > 1 && std::abs(reducedN) > 1) {
    found = commonDivisor(reducedZ, reducedN);
    reducedZ /= static_cast<double>(found);
    reducedN /= static_cast<double>(found);
  }
  const int sign = reducedN < 0 ? -1 : 1;
  divisor = found * sign;
  std::vector<NaturalConstant> common;
  if (!digit.zConstants.empty() && digit.zConstants == digit.nConstants) common = {digit.zConstants.front()};
  if (found == 1 && common.empty()) return std::nullopt;

  auto reduced = std::make_shared<Digit>();
  reduced->copyValues(digit);
  reduced->z = reducedZ * sign;
  reduced->n = reducedN * sign;
  reduced->zConstants = commonConstantsRemoved(digit.zConstants, common);
  reduced->nConstants = commonConstantsRemoved(digit.nConstants, common);
  const std::string before =
      TaviStringOutput::cancelledFractionLatex(digit, common, static_cast<double>(*divisor));
  const std::string after = TaviStringOutput::digitLatex(*reduced, {.withBrackets = std::nullopt});
  // The line is a printf format without arguments.
  return Cancellation{reduced, replacedAll(joined({before, " =  ", after}), "%%", "%")};
}

std::vector<NaturalConstant> TaviMathOperation::commonConstantsRemoved(
    std::span<const NaturalConstant> constants, std::span<const NaturalConstant> common) {
  std::vector<NaturalConstant> rest;
  for (const NaturalConstant& constant : constants) {
    if (std::find(common.begin(), common.end(), constant) == common.end()) rest.push_back(constant);
  }
  return rest;
}

double TaviMathOperation::rounded(int places, double value) {
  double factor = 1;
  for (int place = 0; place < places; ++place) factor *= 10;
  return std::round(value * factor) / factor;
}

RoundedValue TaviMathOperation::roundedIfNearlyExact(int places, double value) {
  const double roundedValue = rounded(places, value);
  const std::string text = doubleText(value);
  std::string_view tail = lastPiece(text, '.');
  tail.remove_prefix(std::min(tail.size(), static_cast<std::size_t>(places)));
  const bool isExact = roundedValue == value || tail.starts_with("0000") || tail.starts_with("9999");
  return {roundedValue, !isExact};
}

std::shared_ptr<Digit> TaviMathOperation::raised(const Digit& digit, double exponent) {
  auto power = std::make_shared<Digit>();
  power->copyValues(digit);
  power->z = std::pow(required(digit.z, "an unknown number cannot be raised"), exponent);
  power->n = std::pow(digit.n, exponent);
  return power;
}

}  // namespace tavi
