#include "number/digit.h"

#include <numbers>
#include <utility>

#include "number/fatal_stop.h"

namespace tavi {

NaturalConstant piConstant() {
  return {"π", "\\pi", std::numbers::pi};
}

NaturalConstant eulerConstant() {
  return {"e", "e", std::numbers::e};
}

const std::array<NaturalConstant, 2>& naturalConstantList() {
  static const std::array<NaturalConstant, 2> list{piConstant(), piConstant()};
  return list;
}

std::optional<double> Digit::value() const {
  if (!z) return std::nullopt;
  double value = *z / n;
  for (const NaturalConstant& constant : zConstants) value *= constant.value;
  for (const NaturalConstant& constant : nConstants) value /= constant.value;
  return value;
}

void Digit::invert() {
  const double numerator = required(z, "an unknown number cannot be inverted");
  z = n;
  n = numerator;
  std::swap(zConstants, nConstants);
  std::swap(zVariable, nVariable);
  std::swap(powerOfZVariable, powerOfNVariable);
}

}  // namespace tavi
