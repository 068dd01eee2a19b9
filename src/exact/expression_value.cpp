#include "exact/expression_value.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory_resource>
#include <utility>
#include <vector>

namespace tavi::exact {

namespace {

// The limits beyond which the working prints 0 and infinity, and what its ranges end with: e^(±limit).
constexpr double zeroLimit = 1e-10;
constexpr double infinityLimit = 1e12;
// Half of the last place that it prints.
constexpr double printedPlaces = 5e-11;
constexpr double resultPlaces = 5e-6;
constexpr std::size_t usualDepth = 8;
constexpr slong farthest = 1'000'000'000;
constexpr int shortDigits = 6;
constexpr double shortenedBy = 5e-6;  // relative

// From the logarithm of `from` to that of `to`, where one may lie beyond all bounds.
Ball range(const Ball& from, const Ball& to) {
  Ball range;
  arb_union(range, from, to, ballPrecision);
  return range;
}

Ball logarithmOfNumber(double number) {
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

bool isSizeKnown(const Result& result) {
  return result.value.fault == Fault::none && result.value.sign != 0;
}

class Calculation {
 public:
  Calculation(const Reading& reading, bool isSpread) : reading_(reading), isSpread_(isSpread) {}

  Result result(const std::vector<Operation>& expression) {
    stack_.reserve(usualDepth);
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
      case Operator::divide:
        invert(stack_.back());
        [[fallthrough]];
      case Operator::multiply:
        multiply(*(stack_.end() - 2), stack_.back());
        stack_.pop_back();
        break;
      case Operator::power:
        power(operation);
        break;
      case Operator::root: {
        Result index = taken();
        const bool isZero = index.value.fault == Fault::none && index.value.sign == 0;
        invert(index);
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
    Result result{.value = Value::of(operation.number)};
    if (has(rule::zero | rule::overflow) && operation.number == 0) {
      result.value = Value::of(tiny());
      if (isSpread_) {
        result.spread =
            range(whole(-farthest), has(rule::overflow) ? whole(farthest) : logarithmOfNumber(zeroLimit));
      }
      return result;
    }
    if (isSpread_ && operation.number != 0) result.spread = spreadOf(operation);
    return result;
  }

  // Of a number that is not 0.
  std::optional<Ball> spreadOf(const Operation& operation) const {
    const bool isSettled = operation.half.isZero() ||
                           std::ranges::find(reading_.settled, operation.number) != reading_.settled.end();
    const bool isShortened =
        (has(rule::denominator) && operation.isInDenominator && operation.significantDigits <= shortDigits) ||
        (has(rule::expansion) && isSettled && operation.significantDigits > shortDigits);
    if (isSettled && !isShortened && !has(rule::places)) return std::nullopt;

    Ball size;
    arb_set_fmpq(size, operation.number, ballPrecision);
    arb_abs(size, size);
    Ball radius;
    if (!isSettled) arb_set_fmpq(radius, operation.half, ballPrecision);
    Ball other;
    if (has(rule::places)) {
      arb_set_d(other, reading_.hasFewPlaces ? resultPlaces : printedPlaces);
      arb_max(radius, radius, other, ballPrecision);
    }
    if (isShortened) {
      arb_set_d(other, shortenedBy);
      arb_mul(other, other, size, ballPrecision);
      arb_max(radius, radius, other, ballPrecision);
    }
    const bool mayBeZero = arb_ge(radius, size) != 0;
    if (mayBeZero) {
      arb_add(size, size, radius, ballPrecision);
    } else {
      arb_add_error(size, radius);
    }
    arb_log(size, size, ballPrecision);
    return mayBeZero ? range(whole(-farthest), size) : size;
  }

  Result symbol(const Operation& operation) const {
    const Rules dropped = operation.isInExponent           ? rule::symbolInExponent
                          : operation.symbol == Symbol::pi ? rule::pi
                                                           : rule::variable;
    Result result{.value = Value::of(Rational(1))};
    if (has(dropped)) {
      // It stands for a number that is not written, such as 1, and not exact.
      const bool isShortened = has(rule::denominator) && operation.isInDenominator;
      const double error = isShortened ? shortenedBy : has(rule::places) ? printedPlaces : 0;
      if (error > 0) mag_set_d(arb_radref(static_cast<arb_ptr>(result.spread.emplace())), error);
      return result;
    }
    const auto index = static_cast<std::size_t>(operation.symbol);
    result.value.product.exponents[index] = 1;
    if (reading_.areNegative[index]) result.value.sign = -1;
    return result;
  }

  Result infinity() const {
    Result result{.value = Value::of(Rational(10'000'000'000'000))};
    result.isInfinite = !has(rule::infinity | rule::overflow);
    if (isSpread_) {
      result.spread =
          range(has(rule::overflow) ? whole(-farthest) : logarithmOfNumber(infinityLimit), whole(farthest));
    }
    return result;
  }

  static void multiply(Result& product, const Result& factor) {
    if (!isSizeKnown(product) || !isSizeKnown(factor)) {
      product.spread.reset();
    } else if (product.spread || factor.spread) {
      Ball sum = logarithmOf(product);
      arb_add(sum, sum, logarithmOf(factor), ballPrecision);
      product.spread = std::move(sum);
    }
    product.value = multiplied(std::move(product.value), factor.value);
    product.isInfinite |= factor.isInfinite;
    product.isSizeAlone |= factor.isSizeAlone;
    product.isNegativeRaised |= factor.isNegativeRaised;
  }

  static void invert(Result& divisor) {
    divisor.value = raised(std::move(divisor.value), Rational(-1));
    if (divisor.spread) arb_neg(*divisor.spread, *divisor.spread);
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
    if (isOne) return {.value = Value::of(Rational(1))};
    Result result{.value = raisedValue(base.value, exponent.value),
                  .isInfinite = base.isInfinite || exponent.isInfinite,
                  .isSizeAlone = base.isSizeAlone || exponent.isSizeAlone,
                  .isNegativeRaised = base.isNegativeRaised || base.value.sign < 0};
    if (isSizeEnough(result.value.fault)) {
      if (base.value.sign == 0) base.value = Value::of(tiny());
      base.value.sign = 1;
      result.value = raisedValue(base.value, exponent.value);
      result.isSizeAlone = true;
    }
    if ((base.spread || exponent.spread) && isSizeKnown(base) && isSizeKnown(exponent)) {
      Ball product = numberOf(exponent);
      arb_mul(product, product, logarithmOf(base), ballPrecision);
      result.spread = std::move(product);
    }
    return result;
  }

  // The ball of an exponent itself.
  Ball numberOf(const Result& exponent) const {
    Ball number;
    const auto rational = exponent.spread ? std::nullopt : rationalOf(exponent.value);
    if (rational) {
      arb_set_fmpq(number, *rational, ballPrecision);
      return number;
    }
    const Ball logarithm = logarithmOf(exponent);
    arb_exp(number, logarithm, ballPrecision);
    if (exponent.value.sign < 0) arb_neg(number, number);
    if (has(rule::zero) && arb_le(logarithm, logarithmOfNumber(zeroLimit)) != 0) {
      Ball opposite;
      arb_neg(opposite, number);
      arb_union(number, number, opposite, ballPrecision);
    }
    return number;
  }

  const Reading& reading_;
  bool isSpread_;
  // The usual expression takes no memory of the heap.
  alignas(Result)
      std::array<std::byte, usualDepth * sizeof(Result)> room_;  // NOLINT(*-member-init): filled by the stack
  std::pmr::monotonic_buffer_resource memory_{room_.data(), room_.size()};
  std::pmr::vector<Result> stack_{&memory_};
};

}  // namespace

Ball logarithmOf(const Result& result) {
  return result.spread ? *result.spread : logarithm(result.value, ballPrecision);
}

Result exactResult(const std::vector<Operation>& expression, const Reading& reading) {
  return Calculation(reading, false).result(expression);
}

Result spreadResult(const std::vector<Operation>& expression, const Reading& reading) {
  return Calculation(reading, true).result(expression);
}

}  // namespace tavi::exact
