#include "exact/value.h"

#include <algorithm>
#include <utility>

namespace tavi::exact {

namespace {

slong bits(const Rational& number) {
  return static_cast<slong>(std::max(fmpz_bits(number.numerator()), fmpz_bits(number.denominator())));
}

bool isEven(const fmpz* number) {
  return fmpz_is_even(number) != 0;
}

bool areAllZero(const Exponents& exponents) {
  return std::ranges::all_of(exponents, &Rational::isZero);
}

// So that the base is 1 with power 0, or above 1. It is above 0 before.
void settle(Product& product) {
  if (fmpz_cmp(product.base.numerator(), product.base.denominator()) < 0) {
    fmpq_inv(product.base, product.base);
    fmpq_neg(product.power, product.power);
  }
  if (product.power.isZero()) product.base = 1;
  if (product.base == 1) product.power = 0;
}

// The number of the product is 1 to the power 0, or its base is above 1 and its power not 0.
bool areNumbersEqual(const Product& a, const Product& b) {
  if (a.power == b.power) return a.base == b.base;
  if (a.power.sign() != b.power.sign() || a.power.isZero()) return false;
  // a^n = b^m with n and m without a common divisor: then both are powers of one number, a = t^m, b = t^n.
  const Rational ratio = a.power / b.power;
  const auto t = exactRoot(a.base, ratio.denominator());
  if (!t) return false;
  const auto power = wholePower(*t, ratio.numerator(), 2 * bits(b.base));
  return power && *power == b.base;
}

bool multiplyNumbers(Product& a, const Product& b) {
  if (b.power.isZero()) return true;
  if (a.power.isZero()) {
    a.base = b.base;
    a.power = b.power;
    return true;
  }
  if (a.base == b.base) {
    a.power = a.power + b.power;
  } else {
    Rational common;
    fmpq_gcd(common, a.power, b.power);
    const auto own = wholePower(a.base, (a.power / common).numerator());
    const auto other = wholePower(b.base, (b.power / common).numerator());
    if (!own || !other) return false;
    a.base = *own * *other;
    a.power = common;
  }
  settle(a);
  return true;
}

bool multiply(Product& a, const Product& b) {
  for (std::size_t i = 0; i < symbolCount; ++i) {
    if (!b.exponents[i].isZero()) fmpq_add(a.exponents[i], a.exponents[i], b.exponents[i]);
  }
  return multiplyNumbers(a, b);
}

void scale(Exponents& exponents, const Rational& factor) {
  for (Rational& exponent : exponents) {
    if (!exponent.isZero()) fmpq_mul(exponent, exponent, factor);
  }
}

void raise(Product& product, const Rational& exponent) {
  fmpq_mul(product.power, product.power, exponent);
  scale(product.exponents, exponent);
  settle(product);
}

Value raisedToSymbols(const Value& base, const Value& exponent) {
  const Exponents& symbols = exponent.product.exponents;
  const bool isVariable = hasVariable(symbols);
  if (base.sign == 0) {
    if (isVariable) return Value::of(Fault::zeroToVariable);
    return exponent.sign > 0 ? base : Value::of(Fault::divisionByZero);
  }
  if (base == Value::of(Rational(1))) return base;
  if (base.sign < 0) {
    if (hasVariable(base)) return Value::of(Fault::signOfVariables);
    return Value::of(isVariable ? Fault::negativeToVariable : Fault::irrationalPowerOfNegative);
  }
  Value factor = exponent;
  factor.product.exponents = {};
  factor.tower.reset();
  const auto rational = rationalOf(factor);
  if (!rational || base.tower || exponent.tower) return Value::of(Fault::unwieldy);
  Value result;
  result.tower = {base.product, symbols};
  raise(result.tower->base, *rational);
  return result;
}

Ball logarithm(const Product& product, slong precision) {
  Ball sum;
  Ball ball;
  if (!product.power.isZero()) {
    arb_set_fmpq(ball, product.base, precision);
    arb_log(ball, ball, precision);
    arb_set_fmpq(sum, product.power, precision);
    arb_mul(sum, sum, ball, precision);
  }
  const Rational& powerOfPi = product.exponents[static_cast<std::size_t>(Symbol::pi)];
  if (!powerOfPi.isZero()) {
    Ball factor;
    arb_set_fmpq(factor, powerOfPi, precision);
    arb_const_pi(ball, precision);
    arb_log(ball, ball, precision);
    arb_addmul(sum, ball, factor, precision);
  }
  return sum;
}

}  // namespace

bool isUndefinedBy(Fault fault) {
  switch (fault) {
    case Fault::zeroToTheZero:
    case Fault::divisionByZero:
    case Fault::rootWithIndexZero:
    case Fault::evenRootOfNegative:
    case Fault::irrationalPowerOfNegative:
      return true;
    default:
      return false;
  }
}

bool isVariableBy(Fault fault) {
  return fault == Fault::signOfVariables || fault == Fault::negativeToVariable ||
         fault == Fault::zeroToVariable;
}

bool operator==(const Product& a, const Product& b) {
  return a.exponents == b.exponents && areNumbersEqual(a, b);
}

bool operator==(const Tower& a, const Tower& b) {
  return a.exponent == b.exponent && a.base == b.base;
}

bool operator==(const Value& a, const Value& b) {
  if (a.fault != Fault::none || b.fault != Fault::none || a.sign != b.sign) return false;
  return a.sign == 0 || (a.product == b.product && a.tower == b.tower);
}

Value Value::of(const Rational& number) {
  Value value;
  value.sign = number.sign();
  if (value.sign != 0) {
    fmpq_abs(value.product.base, number);
    value.product.power = 1;
    settle(value.product);
  }
  return value;
}

Value Value::of(Fault fault) {
  Value value;
  value.fault = fault;
  return value;
}

bool hasVariable(const Exponents& exponents) {
  return std::any_of(exponents.begin() + 1, exponents.end(),
                     [](const Rational& power) { return !power.isZero(); });
}

bool hasVariable(const Value& value) {
  return hasVariable(value.product.exponents) ||
         (value.tower && (hasVariable(value.tower->exponent) || hasVariable(value.tower->base.exponents)));
}

std::optional<Rational> wholePower(const Rational& number, const fmpz* exponent, slong limit) {
  if (number == 1 || fmpz_is_one(exponent) != 0) return number;
  if (fmpz_cmpabs(exponent, Integer(limit)) > 0) return std::nullopt;
  const slong power = fmpz_get_si(exponent);
  if (power != -1 && bits(number) * std::abs(power) > limit) return std::nullopt;
  Rational result;
  fmpq_pow_si(result, number, power);
  return result;
}

std::optional<Rational> exactRoot(const Rational& number, const fmpz* n) {
  if (fmpz_is_one(n) != 0 || number == 1) return number;
  // A root above 1 is at least 2.
  if (fmpz_cmp_si(n, bits(number)) > 0) return std::nullopt;
  Rational root;
  if (fmpz_root(root.numerator(), number.numerator(), fmpz_get_si(n)) == 0) return std::nullopt;
  if (fmpz_root(root.denominator(), number.denominator(), fmpz_get_si(n)) == 0) return std::nullopt;
  return root;
}

std::optional<WholePower> wholePowerOf(const Value& value) {
  const Product& product = value.product;
  if (value.fault != Fault::none || value.sign == 0 || value.tower || !areAllZero(product.exponents)) {
    return std::nullopt;
  }
  auto root = exactRoot(product.base, product.power.denominator());
  if (!root) return std::nullopt;
  return WholePower{*std::move(root), Integer::copyOf(product.power.numerator())};
}

std::optional<Rational> rationalOf(const Value& value) {
  if (value.fault == Fault::none && value.sign == 0) return Rational(0);
  const auto power = wholePowerOf(value);
  auto number = power ? wholePower(power->base, power->exponent) : std::nullopt;
  if (number && value.sign < 0) fmpq_neg(*number, *number);
  return number;
}

Value multiplied(Value a, const Value& b) {
  if (a.fault != Fault::none) return a;
  if (b.fault != Fault::none) return b;
  if (a.sign == 0) return a;
  if (b.sign == 0) return b;
  a.sign *= b.sign;
  bool isWieldy = multiply(a.product, b.product);
  if (b.tower) {
    if (a.tower && a.tower->exponent == b.tower->exponent) {
      isWieldy = multiply(a.tower->base, b.tower->base) && isWieldy;
      if (a.tower->base == Product()) a.tower.reset();
    } else {
      isWieldy = isWieldy && !a.tower;
      a.tower = b.tower;
    }
  }
  if (!isWieldy) return Value::of(Fault::unwieldy);
  return a;
}

Value raisedBySettledSigns(Value value, const Rational& exponent) {
  if (value.fault != Fault::none) return value;
  if (value.sign == 0) {
    if (exponent.sign() > 0) return value;
    return Value::of(exponent.isZero() ? Fault::zeroToTheZero : Fault::divisionByZero);
  }
  if (exponent.isZero()) return Value::of(Rational(1));
  if (value.sign < 0 && isEven(exponent.denominator())) {
    return Value::of(hasVariable(value) ? Fault::signOfVariables : Fault::evenRootOfNegative);
  }
  if (isEven(exponent.numerator())) value.sign = 1;
  raise(value.product, exponent);
  if (value.tower) raise(value.tower->base, exponent);
  return value;
}

Value raised(Value value, const Rational& exponent) {
  value = raisedBySettledSigns(std::move(value), exponent);
  if (value.fault != Fault::none || value.sign == 0) return value;
  const Exponents& exponents = value.product.exponents;
  const auto isVariableUnderEvenRoot = [](const Rational& power) { return isEven(power.denominator()); };
  if (isEven(exponent.denominator()) &&
      std::count_if(exponents.begin() + 1, exponents.end(), isVariableUnderEvenRoot) > 1) {
    return Value::of(Fault::signOfVariables);
  }
  return value;
}

Value raised(const Value& base, const Value& exponent) {
  if (base.fault != Fault::none) return base;
  if (exponent.fault != Fault::none) return exponent;
  if (const auto rational = rationalOf(exponent)) return raised(base, *rational);
  return raisedToSymbols(base, exponent);
}

Ball logarithm(const Value& value, slong precision) {
  Ball sum = logarithm(value.product, precision);
  if (value.tower) {
    Product symbols;
    symbols.exponents = value.tower->exponent;
    Ball exponent = logarithm(symbols, precision);
    arb_exp(exponent, exponent, precision);
    arb_addmul(sum, exponent, logarithm(value.tower->base, precision), precision);
  }
  return sum;
}

}  // namespace tavi::exact
