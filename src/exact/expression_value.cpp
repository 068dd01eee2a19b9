#include "exact/expression_value.h"

#include <algorithm>
#include <utility>

namespace tavi::exact {

namespace {

// The limits beyond which the working prints 0 and infinity, and what its ranges end with: e^(±limit).
constexpr double zeroLimit = 1e-10;
constexpr double infinityLimit = 1e12;
// Half of the last place that it prints.
constexpr double printedPlaces = 5e-11;
constexpr double resultPlaces = 5e-6;
constexpr slong farthest = 1'000'000'000;
constexpr int shortDigits = 6;
constexpr double shortenedBy = 5e-6;  // relative

// From the logarithm of `from` to that of `to`, where one may lie beyond all bounds.
Ball range(const Ball& from, const Ball& to) {
  Ball range;
  arb_union(range, from, to, ballPrecision);
  return range;
}

Ball logarithmOf(double number) {
  Ball ball;
  arb_set_d(ball, number);
  arb_log(ball, ball, ballPrecision);
  return ball;
}

Ball whole(slong number) {
  Ball ball;
  arb_set_si(ball, number);
  return ball;
}

// A number that stands for what is too small to be told from 0.
Rational tiny() {
  return {Integer(1), Integer(10'000'000'000'000)};
}

class Calculation {
 public:
  Calculation(const Reading& reading, bool hasBalls) : reading_(reading), hasBalls_(hasBalls) {}

  Result result(const std::vector<Operation>& expression) {
    stack_.reserve(8);
    for (const Operation& operation : expression) carryOut(operation);
    return std::move(stack_.back());
  }

 private:
  bool has(Rules rule) const { return (reading_.rules & rule) != 0; }

  Result taken() {
    Result last = std::move(stack_.back());
    stack_.pop_back();
    return last;
  }

  void carryOut(const Operation& operation) {
    switch (operation.kind) {
      case Operator::number:
        stack_.push_back(number(operation));
        break;
      case Operator::symbol:
        stack_.push_back(symbol(operation));
        break;
      case Operator::infinity:
        stack_.push_back(infinity());
        break;
      case Operator::negate:
        stack_.back().value.sign = -stack_.back().value.sign;
        break;
      case Operator::multiply: {
        const Result factor = taken();
        multiply(stack_.back(), factor);
        break;
      }
      case Operator::divide: {
        const Result divisor = taken();
        multiply(stack_.back(), inverse(divisor));
        break;
      }
      case Operator::power:
        power(operation);
        break;
      case Operator::root: {
        Result index = taken();
        const bool isZero = index.value.fault == Fault::none && index.value.sign == 0;
        index = inverse(index);
        if (isZero) index.value = Value::of(Fault::rootWithIndexZero);
        stack_.back() = raise(std::move(stack_.back()), index);
        break;
      }
    }
  }

  Result number(const Operation& operation) const {
    if (has(rule::copies) && operation.isInExponent && !operation.half.isZero()) {
      Integer floor;
      fmpz_fdiv_q(floor, operation.number.numerator(), operation.number.denominator());
      return number(
          {.number = Rational(floor, Integer(1)), .significantDigits = operation.significantDigits});
    }
    Result result{.value = Value::of(operation.number), .logarithm = {}};
    if (has(rule::zero | rule::overflow) && operation.number == 0) {
      result.value = Value::of(tiny());
      if (hasBalls_) {
        result.logarithm =
            range(whole(-farthest), has(rule::overflow) ? whole(farthest) : logarithmOf(zeroLimit));
      }
      return result;
    }
    if (!hasBalls_ || operation.number == 0) return result;
    Ball size;
    arb_set_fmpq(size, operation.number, ballPrecision);
    arb_abs(size, size);
    Ball radius;
    const bool isSettled = operation.half.isZero() ||
                           std::ranges::find(reading_.settled, operation.number) != reading_.settled.end();
    if (!isSettled) arb_set_fmpq(radius, operation.half, ballPrecision);
    if (has(rule::places)) {
      Ball places;
      arb_set_d(places, reading_.hasFewPlaces ? resultPlaces : printedPlaces);
      arb_max(radius, radius, places, ballPrecision);
    }
    const bool isShortened =
        (has(rule::denominator) && operation.isInDenominator && operation.significantDigits <= shortDigits) ||
        (has(rule::expansion) && isSettled && operation.significantDigits > shortDigits);
    if (isShortened) {
      Ball places;
      arb_set_d(places, shortenedBy);
      arb_mul(places, places, size, ballPrecision);
      arb_max(radius, radius, places, ballPrecision);
    }
    const bool mayBeZero = arb_ge(radius, size) != 0;
    if (mayBeZero)
      arb_add(size, size, radius, ballPrecision);
    else
      arb_add_error(size, radius);
    arb_log(result.logarithm, size, ballPrecision);
    if (mayBeZero) result.logarithm = range(whole(-farthest), result.logarithm);
    return result;
  }

  Result symbol(const Operation& operation) const {
    const Rules dropped = operation.isInExponent           ? rule::symbolInExponent
                          : operation.symbol == Symbol::pi ? rule::pi
                                                           : rule::variable;
    Result result{.value = Value::of(Rational(1)), .logarithm = {}};
    if (has(dropped)) {
      // It stands for a number that is not written, such as 1, and not exact.
      const bool isShortened = has(rule::denominator) && operation.isInDenominator;
      const double error = isShortened ? shortenedBy : has(rule::places) ? printedPlaces : 0;
      mag_set_d(arb_radref(static_cast<arb_ptr>(result.logarithm)), error);
      return result;
    }
    const auto index = static_cast<std::size_t>(operation.symbol);
    result.value.product.exponents[index] = 1;
    if (reading_.areNegative[index]) result.value.sign = -1;
    if (hasBalls_ && operation.symbol == Symbol::pi)
      result.logarithm = logarithm(result.value, ballPrecision);
    return result;
  }

  Result infinity() const {
    Result result{.value = Value::of(Rational(10'000'000'000'000)), .logarithm = {}};
    result.isInfinite = !has(rule::infinity | rule::overflow);
    if (hasBalls_) {
      result.logarithm =
          range(has(rule::overflow) ? whole(-farthest) : logarithmOf(infinityLimit), whole(farthest));
    }
    return result;
  }

  void multiply(Result& product, const Result& factor) const {
    product.value = multiplied(std::move(product.value), factor.value);
    product.isInfinite |= factor.isInfinite;
    product.isSizeAlone |= factor.isSizeAlone;
    product.isNegativeRaised |= factor.isNegativeRaised;
    if (hasBalls_) arb_add(product.logarithm, product.logarithm, factor.logarithm, ballPrecision);
  }

  static Result inverse(Result divisor) {
    divisor.value = raised(std::move(divisor.value), Rational(-1));
    arb_neg(divisor.logarithm, divisor.logarithm);
    return divisor;
  }

  // -f·b^e, or by the rule of brackets (-f·b)^e.
  void power(const Operation& operation) {
    const Result exponent = taken();
    Result base = taken();
    std::optional<Result> factor;
    if (operation.hasFactor) factor = taken();
    if (has(rule::brackets) && factor) multiply(base, *std::exchange(factor, std::nullopt));
    if (has(rule::brackets) && operation.isSigned) base.value.sign = -base.value.sign;
    Result result = raise(std::move(base), exponent);
    if (factor) multiply(result, *factor);
    if (!has(rule::brackets) && operation.isSigned) result.value.sign = -result.value.sign;
    stack_.push_back(std::move(result));
  }

  static Value raisedValue(const Value& base, const Value& exponent) {
    Value value = raised(base, exponent);
    const auto power = value.fault == Fault::signOfVariables ? rationalOf(exponent) : std::nullopt;
    return power ? raisedBySettledSigns(base, *power) : value;
  }

  // Whether what is lost by a fault is no more than a sign that both sides of a relation lose.
  bool isSizeEnough(Fault fault) const {
    return isVariableBy(fault) || (reading_.rules != 0 && (fault == Fault::evenRootOfNegative ||
                                                           fault == Fault::irrationalPowerOfNegative));
  }

  Result raise(Result base, const Result& exponent) const {
    const bool isOne = has(rule::zeroToTheZero) && base.value.fault == Fault::none && base.value.sign == 0 &&
                       exponent.value.fault == Fault::none && exponent.value.sign == 0;
    if (isOne) return {.value = Value::of(Rational(1)), .logarithm = {}};
    Result result{.value = raisedValue(base.value, exponent.value),
                  .logarithm = {},
                  .isInfinite = base.isInfinite || exponent.isInfinite,
                  .isSizeAlone = base.isSizeAlone || exponent.isSizeAlone,
                  .isNegativeRaised = base.isNegativeRaised || base.value.sign < 0};
    if (isSizeEnough(result.value.fault)) {
      if (base.value.sign == 0) base.value = Value::of(tiny());
      base.value.sign = 1;
      result.value = raisedValue(base.value, exponent.value);
      result.isSizeAlone = true;
    }
    if (hasBalls_ && exponent.value.sign != 0) {
      Ball size;
      arb_exp(size, exponent.logarithm, ballPrecision);
      if (exponent.value.sign < 0) arb_neg(size, size);
      if (has(rule::zero) && arb_le(exponent.logarithm, logarithmOf(zeroLimit)) != 0) {
        Ball opposite;
        arb_neg(opposite, size);
        arb_union(size, size, opposite, ballPrecision);
      }
      arb_mul(result.logarithm, base.logarithm, size, ballPrecision);
    }
    return result;
  }

  const Reading& reading_;
  bool hasBalls_;
  std::vector<Result> stack_;
};

}  // namespace

Result exactResult(const std::vector<Operation>& expression, const Reading& reading) {
  return Calculation(reading, false).result(expression);
}

Result ballResult(const std::vector<Operation>& expression, const Reading& reading) {
  return Calculation(reading, true).result(expression);
}

}  // namespace tavi::exact
