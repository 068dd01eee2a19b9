#pragma once

#include <array>
#include <optional>
#include <span>
#include <vector>

#include "exact/line_reader.h"
#include "exact/rules.h"
#include "exact/value.h"

namespace tavi::exact {

/// How an expression is to be read.
struct Reading {
  Rules rules = 0;
  /// Decimals that stand for themselves; all others may be rounded within half of their last place.
  std::span<const Rational> settled{};
  std::array<bool, symbolCount> areNegative{};  ///< The symbols that stand for a negative number.
  bool hasFewPlaces = false;                    ///< It is the decimal of a result, printed with five places.
};

/// What an expression comes to.
struct Result {
  Value value;  ///< With every number as printed; a fault where there is none.
  /// Of all that the printed numbers may stand for, the logarithms of the sizes, variables counted as 1.
  /// Absent where they stand for themselves alone.
  std::optional<Ball> spread{};
  bool isInfinite = false;        ///< It holds ∞, and the value has the sign of the whole alone.
  bool isSizeAlone = false;       ///< A negative number was raised as a positive one: (-2)^x.
  bool isNegativeRaised = false;  ///< A sign may depend on the last digit of an exponent.
};

/// The value alone, as if every printed number stood for itself.
Result exactResult(const std::vector<Operation>& expression, const Reading& reading);

/// With all that the printed numbers may stand for.
Result spreadResult(const std::vector<Operation>& expression, const Reading& reading);

/// The logarithm of the size of a result that is a number and not 0, with all its spread.
Ball logarithmOf(const Result& result);

/// Bits that the balls are calculated with.
inline constexpr slong ballPrecision = 128;

}  // namespace tavi::exact
