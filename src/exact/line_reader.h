#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "exact/numbers.h"
#include "exact/value.h"

namespace tavi::exact {

enum class Operator : std::uint8_t { number, symbol, infinity, negate, multiply, divide, power, root };

/// One operation of an expression in postfix order: it takes its operands from a stack, the last one first,
/// and leaves its result there.
struct Operation {
  Operator kind = Operator::number;

  // Of a number as printed.
  Rational number{};
  Rational half{};            ///< Half of a decimal's last place; 0 for a whole number.
  int significantDigits = 0;  ///< From the first to the last that is not 0.

  Symbol symbol{};

  bool isInExponent = false;  ///< Or in the index of a root.
  bool isInDenominator = false;

  // Of a power what stands without brackets before its base: -2x^{3}. The factor is one operand more, the
  // first.
  bool isSigned = false;
  bool hasFactor = false;

  friend bool operator==(const Operation&, const Operation&) = default;
};

/// One side of a relation; absent where it holds words or what cannot be read as a number, with variables or
/// without.
using Expression = std::optional<std::vector<Operation>>;

enum class Relation : std::uint8_t { equal, approximate };

/// A line of a working.
struct Line {
  /// A line that begins with a relation has an empty first side.
  bool isContinued = false;
  std::vector<Expression> sides;    ///< Without that one.
  std::vector<Relation> relations;  ///< One less than sides, or as many where it is continued.
};

/// Reads a line of LaTeX, stored or as it is typeset, from the typesetter's tree of it.
Line readLine(std::string_view latex);

}  // namespace tavi::exact
