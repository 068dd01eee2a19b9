#include "exact/decimal.h"

#include <algorithm>
#include <cstdint>
#include <string_view>
#include <utility>

#include "number/text.h"

namespace tavi::exact {

namespace {

// The powers of ten between which a decimal is written without one.
constexpr slong largestPlain = 20;
constexpr slong smallestPlain = -7;
constexpr slong longestPeriod = 20;
constexpr slong maximumPrecision = 50'000;  // bits

Integer powerOfTen(ulong exponent) {
  Integer power(10);
  fmpz_pow_ui(power, power, exponent);
  return power;
}

// Digits with the point behind the first `pointAt` of them, zeros supplied where it lies outside.
std::string withPoint(std::string digits, slong pointAt) {
  if (pointAt <= 0) {
    digits.insert(0, static_cast<std::size_t>(1 - pointAt), '0');
    pointAt = 1;
  }
  const auto at = static_cast<std::size_t>(pointAt);
  if (digits.size() < at) digits.append(at - digits.size(), '0');
  if (digits.size() > at) digits.insert(at, 1, '.');
  return digits;
}

std::string signedLatex(int sign, std::string_view size) {
  return joined({sign < 0 ? "-" : "", size});
}

std::string signedLatex(int sign, std::string_view size, const Integer& powerOfTen) {
  return joined({signedLatex(sign, size), " \\cdot 10^{", textOf(powerOfTen), "}"});
}

bool isPlain(const Integer& exponent) {
  return exponent >= smallestPlain && exponent <= largestPlain;
}

// mantissa · 10^shift, above 0.
struct Scaled {
  Rational mantissa;
  Integer shift;
};

// The size of a rational value with its powers of ten apart; absent when the mantissa would be long even so.
std::optional<Scaled> scaled(const Value& value) {
  constexpr slong longest = 10'000;  // bits
  auto power = wholePowerOf(value);
  if (!power) return std::nullopt;
  Rational& base = power->base;
  Integer& exponent = power->exponent;
  if (exponent < 0) {
    fmpq_inv(base, base);
    fmpz_neg(exponent, exponent);
  }
  const Integer ten(10);
  const slong zeros = fmpz_remove(base.numerator(), base.numerator(), ten) -
                      fmpz_remove(base.denominator(), base.denominator(), ten);
  auto mantissa = wholePower(base, exponent, longest);
  if (!mantissa) return std::nullopt;
  fmpz_mul_si(exponent, exponent, zeros);
  return Scaled{*std::move(mantissa), std::move(exponent)};
}

// The largest power of ten that is not above `number`, which is above 0.
slong orderOf(const Rational& number) {
  const auto order = static_cast<slong>(textOf(number.numerator()).size()) -
                     static_cast<slong>(textOf(number.denominator()).size());
  Integer above = Integer::copyOf(number.numerator());
  Integer below = Integer::copyOf(number.denominator());
  Integer& smaller = order > 0 ? below : above;
  fmpz_mul(smaller, smaller, powerOfTen(static_cast<ulong>(std::abs(order))));
  return above < below ? order - 1 : order;
}

Rational timesPowerOfTen(const Rational& number, slong exponent) {
  const Rational power(powerOfTen(static_cast<ulong>(std::abs(exponent))), Integer(1));
  return exponent < 0 ? number / power : number * power;
}

// The digits of `number` to the end, or to the end of a period of at most 20. Absent when there is none or
// when more than `maximumCount` significant digits stand before it.
std::optional<std::string> endingDecimal(const Rational& number, std::size_t maximumCount) {
  Integer divisor = Integer::copyOf(number.denominator());
  const slong twos = fmpz_remove(divisor, divisor, Integer(2));
  const slong fives = fmpz_remove(divisor, divisor, Integer(5));
  const slong places = std::max(twos, fives);
  Integer digits;
  Integer rest;
  const Rational shifted = timesPowerOfTen(number, places);
  fmpz_fdiv_qr(digits, rest, shifted.numerator(), divisor);
  std::string text = digits == 0 ? "" : textOf(digits);
  if (text.size() > maximumCount) return std::nullopt;
  if (text.size() <= static_cast<std::size_t>(places)) {
    text.insert(0, static_cast<std::size_t>(places) + 1 - text.size(), '0');
  }
  const slong whole = static_cast<slong>(text.size()) - places;
  if (rest == 0) return withPoint(std::move(text), whole);

  Integer power(1);
  for (slong period = 1; period <= longestPeriod; ++period) {
    fmpz_mul_ui(power, power, 10);
    Integer nines;
    fmpz_sub_ui(nines, power, 1);
    if (fmpz_divisible(nines, divisor) == 0) continue;
    fmpz_divexact(nines, nines, divisor);
    fmpz_mul(nines, nines, rest);
    std::string repeated = textOf(nines);
    repeated.insert(0, static_cast<std::size_t>(period) - repeated.size(), '0');
    return joined({withPoint(std::move(text), whole), places == 0 ? "." : "", "\\overline{", repeated, "}"});
  }
  return std::nullopt;
}

std::optional<std::string> exactDecimal(const Value& value, int digits) {
  const auto number = scaled(value);
  if (!number) return std::nullopt;
  const slong order = orderOf(number->mantissa);
  Integer exponent;
  fmpz_add_si(exponent, number->shift, order);
  if (isPlain(exponent)) {
    const slong count = std::max<slong>(digits, fmpz_get_si(exponent) + 1);
    const auto decimal = endingDecimal(timesPowerOfTen(number->mantissa, fmpz_get_si(number->shift)),
                                       static_cast<std::size_t>(count));
    return decimal ? std::optional(signedLatex(value.sign, *decimal)) : std::nullopt;
  }
  const auto decimal =
      endingDecimal(timesPowerOfTen(number->mantissa, -order), static_cast<std::size_t>(digits));
  return decimal ? std::optional(signedLatex(value.sign, *decimal, exponent)) : std::nullopt;
}

// d.ddd · 10^exponent
struct Significant {
  std::string digits;
  Integer exponent;
};

enum class Rounding : std::uint8_t { toNearest, down };

// The one number of so many digits that all numbers of a ball round to. The ball lies about 1 to 10.
std::optional<std::string> uniqueDigits(const Ball& mantissa, slong count, Rounding rounding,
                                        slong precision) {
  Ball digits;
  arb_mul_fmpz(digits, mantissa, powerOfTen(static_cast<ulong>(count - 1)), precision);
  if (rounding == Rounding::toNearest) {
    Ball half;
    arb_set_d(half, 0.5);
    arb_add(digits, digits, half, precision);
  }
  arb_floor(digits, digits, precision);
  Integer unique;
  if (arb_get_unique_fmpz(unique, digits) == 0) return std::nullopt;
  return textOf(unique);
}

// The first digits of a value that is not 0, one more than asked for where it lies too near the middle
// between two decimals to tell.
std::optional<Significant> significant(const Value& value, slong count, Rounding rounding) {
  // As many bits as the digits take, those of the logarithm's size, and some to spare.
  const Ball rough = logarithm(value, 64);
  const slong size = std::clamp<slong>(arf_abs_bound_lt_2exp_si(arb_midref(static_cast<arb_srcptr>(rough))),
                                       0, maximumPrecision);
  constexpr slong spare = 64;

  for (slong precision = count * 10 / 3 + size + spare; precision <= maximumPrecision; precision *= 2) {
    const Ball natural = logarithm(value, precision);
    Ball ln10;
    arb_const_log10(ln10, precision);
    Ball mantissa;
    arb_div(mantissa, natural, ln10, precision);
    Integer exponent;
    arf_get_fmpz(exponent, arb_midref(static_cast<arb_ptr>(mantissa)), ARF_RND_FLOOR);
    arb_mul_fmpz(mantissa, ln10, exponent, precision);
    arb_sub(mantissa, natural, mantissa, precision);
    arb_exp(mantissa, mantissa, precision);
    for (const slong tried : {count, count + 1}) {
      auto digits = uniqueDigits(mantissa, tried, rounding, precision);
      if (!digits) continue;
      // Rounded up to the next power of ten.
      if (digits->size() > static_cast<std::size_t>(tried)) {
        digits->pop_back();
        fmpz_add_ui(exponent, exponent, 1);
      }
      return Significant{*std::move(digits), std::move(exponent)};
    }
  }
  return std::nullopt;
}

}  // namespace

std::optional<std::string> decimalLatex(const Value& value, int digits) {
  if (value.fault != Fault::none || hasVariable(value)) return std::nullopt;
  if (value.sign == 0) return "0";
  if (auto exact = exactDecimal(value, digits)) return exact;
  auto rounded = significant(value, digits, Rounding::toNearest);
  if (!rounded) return std::nullopt;
  if (!isPlain(rounded->exponent)) {
    return signedLatex(value.sign, withPoint(rounded->digits, 1) + "\\ldots", rounded->exponent);
  }
  const slong whole = fmpz_get_si(rounded->exponent) + 1;
  if (whole > digits) rounded = significant(value, whole, Rounding::toNearest);
  if (!rounded) return std::nullopt;
  return signedLatex(value.sign, withPoint(rounded->digits, whole) + "\\ldots");
}

std::optional<WholeNumber> wholeNumber(const Value& value) {
  constexpr slong shown = 20;
  const auto power = wholePowerOf(value);
  if (!power || !power->base.isWhole() || power->exponent < 0) return std::nullopt;

  std::optional<Significant> first;
  if (const auto exact = scaled(value)) {
    first = Significant{textOf(exact->mantissa.numerator()), exact->shift};
    fmpz_add_ui(first->exponent, first->exponent, first->digits.size() - 1);
    first->digits.append(shown, '0');
  } else {
    first = significant(value, shown, Rounding::down);
  }
  if (!first || first->exponent < 2 * shown) return std::nullopt;
  Integer last;
  fmpz_powm(last, power->base.numerator(), power->exponent, powerOfTen(shown));
  std::string lastDigits = textOf(last);
  lastDigits.insert(0, shown - lastDigits.size(), '0');
  fmpz_add_ui(first->exponent, first->exponent, 1);
  return WholeNumber{textOf(first->exponent), first->digits.substr(0, shown), std::move(lastDigits)};
}

}  // namespace tavi::exact
