#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "number/digit.h"

namespace tavi {

class TaviStringOutput;

/// A reduced fraction and the LaTeX that shows the reduction.
struct Cancellation {
  std::shared_ptr<Digit> digit;
  std::string latex;
};

/// A rounded value; `isApproximate` tells whether the rounding lost more than the noise of double arithmetic.
struct RoundedValue {
  double value = 0;
  bool isApproximate = false;
};

/// The arithmetic on numbers outside the solver's own decisions. None of it writes a step.
class TaviMathOperation {
 public:
  explicit TaviMathOperation(TaviStringOutput& output);
  static TaviMathOperation& shared();

  /// Reduces the fraction of `digit`, which itself stays as it is, by the greatest common divisor of its
  /// parts as integers, and takes a constant away that stands alike on both sides. Absent when there is
  /// nothing to cancel; a negative denominator alone is no cancellation. `divisor` tells afterwards what it
  /// divided by, sign included. With both parts above 1 in size, fatal stop when the smaller lies below 2 or
  /// one does not fit a signed 64-bit integer.
  std::optional<Cancellation> cancelDown(const Digit& digit);

  /// The constants that equal no record of `common`, in order.
  static std::vector<NaturalConstant> commonConstantsRemoved(std::span<const NaturalConstant> constants,
                                                             std::span<const NaturalConstant> common);

  /// `value` rounded to `places` (not negative) decimal places, halves away from zero.
  static double rounded(int places, double value);

  /// The same, telling whether it lost anything. A run of four zeros or nines directly behind the kept places
  /// counts as noise and the value as exact.
  static RoundedValue roundedIfNearlyExact(int places, double value);

  /// Numerator and denominator raised to `exponent`; constants and variables are taken over as they are. `z`
  /// absent: fatal stop.
  static std::shared_ptr<Digit> raised(const Digit& digit, double exponent);

  TaviStringOutput& outputHelper;
  bool withFraction = false;  ///< True while the current task works with fractions.
  bool negativeSqrt = false;
  bool isAnyNumberChanged = false;
  bool cancelDownDone = false;
  std::optional<std::int64_t> divisor;
};

}  // namespace tavi
