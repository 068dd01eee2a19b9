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
  Value value;                    ///< With every number as printed; a fault where there is none.
  Ball logarithm;                 ///< Of the size, of all that the printed numbers may stand for.
  bool isInfinite = false;        ///< It holds ∞, and the value has the sign of the whole alone.
  bool isSizeAlone = false;       ///< A negative number was raised as a positive one: (-2)^x.
  bool isNegativeRaised = false;  ///< A sign may depend on the last digit of an exponent.
};

/// The value alone, without balls.
Result exactResult(const std::vector<Operation>& expression, const Reading& reading);

/// Value and ball, variables counted as 1 in the ball.
Result ballResult(const std::vector<Operation>& expression, const Reading& reading);

/// Bits that the balls are calculated with.
inline constexpr slong ballPrecision = 192;

}  // namespace tavi::exact
