#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "exact/numbers.h"

namespace tavi::exact {

/// What stands for itself in a term, in the order of the exponents below.
enum class Symbol : std::uint8_t { pi, x, y, z };
inline constexpr std::size_t symbolCount = 4;

/// Why there is no value.
enum class Fault : std::uint8_t {
  none,
  zeroToTheZero,
  divisionByZero,
  rootWithIndexZero,
  evenRootOfNegative,
  irrationalPowerOfNegative,
  signOfVariables,     ///< √(-x), √(x/y): only the sign of the variables could tell.
  negativeToVariable,  ///< (-2)^x
  zeroToVariable,      ///< 0^x
  unwieldy             ///< Beyond what is carried exactly, such as 2^(2^x) or a number of a million bits.
};

/// Whether there is no real number at all, and not merely none that could be told.
bool isUndefinedBy(Fault fault);
/// Whether the values of the variables decide on the value.
bool isVariableBy(Fault fault);

using Exponents = std::array<Rational, symbolCount>;

/// base^power · π^a · x^b · y^c · z^d. The base is 1 with power 0, or above 1. Nothing is multiplied out, so
/// that a power costs as little as its exponent.
struct Product {
  Rational base{1};
  Rational power;
  Exponents exponents;

  friend bool operator==(const Product& a, const Product& b);
};

/// `base` to a product of symbols with rational exponents, one of them not 0: 2^π, (x/3)^(1/y).
struct Tower {
  Product base;
  Exponents exponent;

  friend bool operator==(const Tower& a, const Tower& b);
};

/// sign · product · tower, the only shape that powers and roots of the terms can take; or the fault that
/// leaves no value, and all else is to be ignored. Variables count as positive.
struct Value {
  Fault fault = Fault::none;
  int sign = 1;  ///< -1, 0 or 1; with 0 all else is to be ignored.
  Product product;
  std::optional<Tower> tower;

  static Value of(const Rational& number);
  static Value of(Fault fault);

  /// Equal as functions of the variables. Decides between numbers however near they are. False for faults.
  friend bool operator==(const Value& a, const Value& b);
};

bool hasVariable(const Exponents& exponents);
bool hasVariable(const Value& value);

/// The most bits of a number that two others are multiplied out to.
inline constexpr slong maximumBits = 1L << 16;

/// number^exponent for a number above 0; absent when that takes a number of more than `limit` bits.
std::optional<Rational> wholePower(const Rational& number, const fmpz* exponent, slong limit = maximumBits);

/// The rational n-th root, n above 0, of a number above 0, if there is one.
std::optional<Rational> exactRoot(const Rational& number, const fmpz* n);

/// A rational above 0 with a whole exponent.
struct WholePower {
  Rational base;
  Integer exponent;
};

/// The size of a value that is rational and not 0; absent for any other.
std::optional<WholePower> wholePowerOf(const Value& value);

/// The rational that the value is; absent when it is none, or a power of more than `maximumBits` bits.
std::optional<Rational> rationalOf(const Value& value);

Value multiplied(Value a, const Value& b);
Value raised(const Value& base, const Value& exponent);
Value raised(Value value, const Rational& exponent);
/// The same where the variables are known to be positive, or their signs are in that of the value: √(x/y).
Value raisedBySettledSigns(Value value, const Rational& exponent);

/// Natural logarithm of the size of a value that has no fault and is not 0, calculated with `precision` bits;
/// variables count as 1.
Ball logarithm(const Value& value, slong precision);

}  // namespace tavi::exact
