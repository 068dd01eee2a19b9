#include "exact/written_value.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

#include <flint/ulong_extras.h>

#include "exact/exact_task.h"
#include "exact/power_text.h"
#include "number/text.h"

namespace tavi::exact {

namespace {

constexpr double mostDigits = 1'000'000;  // of a numerator or denominator
constexpr double mostRadicandDigits = 1'000;
constexpr slong largestIndex = 1'000;
constexpr ulong largestPrime = 1'000'000;

// Of a number above 0.
std::string latexOf(const Rational& number) {
  if (number.isWhole()) return textOf(number.numerator());
  return joined({"\\frac{", textOf(number.numerator()), "}{", textOf(number.denominator()), "}"});
}

double decimalDigits(const Factor& factor) {
  return fmpz_get_d(factor.exponent) * fmpz_dlog(factor.base) / std::numbers::ln10;
}

// Divides `prime` out of `number`.
void takeOut(Integer& number, ulong prime, std::vector<Factor>& factors) {
  const slong count = fmpz_remove(number, number, Integer(static_cast<slong>(prime)));
  if (count > 0) factors.push_back({Integer(static_cast<slong>(prime)), Integer(count)});
}

// The prime factors up to a million; what is left is taken as one power, with the largest exponent. Several
// primes are tried by one division.
std::vector<Factor> factorsOf(Integer number) {
  std::vector<Factor> factors;
  // Below 10^18 nothing but a prime, a product of two or the square of one can be left.
  if (number < 1'000'000'000'000'000'000) {
    n_factor_t small;
    n_factor_init(&small);
    n_factor(&small, fmpz_get_ui(number), 1);
    for (int i = 0; i < small.num; ++i) {
      factors.push_back({Integer(static_cast<slong>(small.p[i])), Integer(small.exp[i])});
    }
    return factors;
  }
  n_primes_t primes;
  n_primes_init(primes);
  std::vector<ulong> tried;
  ulong product = 1;
  for (ulong prime = n_primes_next(primes);; prime = n_primes_next(primes)) {
    const bool isFull = product > ~0UL / prime;
    if (isFull || prime > largestPrime) {
      const ulong rest = fmpz_fdiv_ui(number, product);
      for (const ulong candidate : tried) {
        if (rest % candidate == 0) takeOut(number, candidate, factors);
      }
      tried.clear();
      product = 1;
    }
    if (prime > largestPrime || number == 1) break;
    tried.push_back(prime);
    product *= prime;
  }
  n_primes_clear(primes);
  if (number != 1) {
    Factor rest{number, 1};
    for (int exponent = fmpz_is_perfect_power(rest.base, number); exponent > 1;
         exponent = fmpz_is_perfect_power(rest.base, rest.base)) {
      fmpz_mul_si(rest.exponent, rest.exponent, exponent);
    }
    factors.push_back(std::move(rest));
  }
  return factors;
}

// numerator/denominator · radicand^(1/index), all above 0; `power` in place of the root where that would be
// too large.
struct Surd {
  std::string numerator{"1"};
  std::string denominator{"1"};
  Integer radicand{1};
  slong index = 1;
  std::string power{};
};

// number^power for a whole power; absent when it would be too large. A power of 10 costs nothing to write.
std::optional<std::string> writtenPower(const fmpz* number, const Integer& power) {
  Factor factor{Integer::copyOf(number), power};
  if (factor.base == 1) return "1";
  if (!(decimalDigits(factor) < mostDigits)) return std::nullopt;
  const auto tens = static_cast<std::size_t>(fmpz_remove(factor.base, factor.base, Integer(10)));
  return powerText({&factor, 1}).append(tens * fmpz_get_ui(power), '0');
}

// base^power for a whole power.
std::optional<Surd> wholeSurd(const Rational& base, const Integer& power) {
  auto numerator = writtenPower(base.numerator(), power);
  auto denominator = numerator ? writtenPower(base.denominator(), power) : std::nullopt;
  if (!denominator) return std::nullopt;
  return Surd{.numerator = *std::move(numerator), .denominator = *std::move(denominator)};
}

Surd asPower(const Rational& base, const Rational& power) {
  Surd surd;
  surd.power = joined({asBase(latexOf(base)), "^{", latexOf(power), "}"});
  return surd;
}

// The factors of the base, those of its denominator with negative exponents.
std::vector<Factor> factorsOf(const Rational& base) {
  std::vector<Factor> factors = factorsOf(Integer::copyOf(base.numerator()));
  for (Factor& factor : factorsOf(Integer::copyOf(base.denominator()))) {
    fmpz_neg(factor.exponent, factor.exponent);
    factors.push_back(std::move(factor));
  }
  return factors;
}

// base^(p/q) for q above 1: every factor keeps the whole part of its exponent before the root and the rest,
// from 0 up to 1, under it.
std::optional<Surd> rootedSurd(const Rational& base, const Rational& power) {
  const double baseDigits = std::max(fmpz_dlog(base.numerator()), fmpz_dlog(base.denominator()));
  if (baseDigits > mostRadicandDigits * std::numbers::ln10) return asPower(base, power);

  std::vector<Factor> outside = factorsOf(base);
  std::vector<Factor> inside = outside;
  Integer divisor = Integer::copyOf(power.denominator());
  double numeratorDigits = 0;
  double denominatorDigits = 0;
  for (std::size_t i = 0; i < outside.size(); ++i) {
    Integer whole;
    fmpz_mul(whole, outside[i].exponent, power.numerator());
    fmpz_fdiv_qr(outside[i].exponent, inside[i].exponent, whole, power.denominator());
    fmpz_gcd(divisor, divisor, inside[i].exponent);
    const double digits = decimalDigits(outside[i]);
    (digits > 0 ? numeratorDigits : denominatorDigits) += std::abs(digits);
  }
  Integer index;
  fmpz_divexact(index, power.denominator(), divisor);
  double radicandDigits = 0;
  for (Factor& factor : inside) {
    fmpz_divexact(factor.exponent, factor.exponent, divisor);
    radicandDigits += decimalDigits(factor);
  }
  if (index > largestIndex || radicandDigits >= mostRadicandDigits) return asPower(base, power);
  if (!(numeratorDigits < mostDigits && denominatorDigits < mostDigits)) return std::nullopt;

  Surd surd;
  surd.index = fmpz_get_si(index);
  Integer part;
  for (const Factor& factor : inside) {
    fmpz_pow_ui(part, factor.base, fmpz_get_ui(factor.exponent));
    fmpz_mul(surd.radicand, surd.radicand, part);
  }
  const auto below = std::stable_partition(outside.begin(), outside.end(),
                                           [](const Factor& factor) { return factor.exponent >= 0; });
  for (auto factor = below; factor != outside.end(); ++factor) fmpz_neg(factor->exponent, factor->exponent);
  surd.numerator = powerText({outside.begin(), below});
  surd.denominator = powerText({below, outside.end()});
  return surd;
}

std::optional<Surd> surdOf(const Product& product) {
  // With a positive power, so that 3^(-1/2) is (1/3)^(1/2).
  Rational base = product.base;
  Rational power = product.power;
  if (power.sign() < 0) {
    fmpq_inv(base, base);
    power = -power;
  }
  if (power.isWhole()) return wholeSurd(base, Integer::copyOf(power.numerator()));
  if (const auto root = exactRoot(base, power.denominator())) {
    return wholeSurd(*root, Integer::copyOf(power.numerator()));
  }
  return rootedSurd(base, power);
}

// A numerator or denominator under construction.
class LatexFactors {
 public:
  void add(std::string_view part) {
    // A letter would become part of the command before it.
    if (latex_.ends_with("\\pi") && part.front() >= 'a') latex_ += ' ';
    latex_ += part;
  }
  const std::string& latex() const { return latex_; }
  bool isEmpty() const { return latex_.empty(); }

 private:
  std::string latex_;
};

void addSymbols(const Exponents& exponents, LatexFactors& numerator, LatexFactors& denominator) {
  for (std::size_t i = 0; i < symbolCount; ++i) {
    Rational exponent = exponents[i];
    if (exponent.isZero()) continue;
    LatexFactors& side = exponent.sign() > 0 ? numerator : denominator;
    fmpq_abs(exponent, exponent);
    side.add(latexOf(static_cast<Symbol>(i)));
    if (exponent != 1) side.add(joined({"^{", latexOf(exponent), "}"}));
  }
}

std::string fractionOf(const LatexFactors& numerator, const LatexFactors& denominator) {
  const std::string_view above = numerator.isEmpty() ? "1" : std::string_view(numerator.latex());
  return denominator.isEmpty() ? std::string(above)
                               : joined({"\\frac{", above, "}{", denominator.latex(), "}"});
}

}  // namespace

std::string latexOf(const Exponents& exponents) {
  LatexFactors numerator;
  LatexFactors denominator;
  addSymbols(exponents, numerator, denominator);
  return fractionOf(numerator, denominator);
}

std::optional<WrittenValue> written(const Value& value) {
  if (value.sign == 0) return WrittenValue{Kind::integer, "0"};
  const auto surd = surdOf(value.product);
  if (!surd) return std::nullopt;
  LatexFactors numerator;
  LatexFactors denominator;
  if (surd->numerator != "1") numerator.add(surd->numerator);
  if (surd->denominator != "1") denominator.add(surd->denominator);
  if (surd->index == 2) numerator.add(joined({"\\sqrt{", textOf(surd->radicand), "}"}));
  if (surd->index > 2)
    numerator.add(joined({"\\sqrt[", std::to_string(surd->index), "]{", textOf(surd->radicand), "}"}));
  if (!surd->power.empty()) numerator.add(surd->power);
  addSymbols(value.product.exponents, numerator, denominator);

  const bool isSymbolic = std::ranges::any_of(value.product.exponents,
                                              [](const Rational& exponent) { return !exponent.isZero(); });
  const bool isSurd = surd->index > 1 || !surd->power.empty();
  const Kind kind = isSymbolic                 ? Kind::symbolic
                    : isSurd                   ? Kind::surd
                    : surd->denominator == "1" ? Kind::integer
                                               : Kind::rational;
  return WrittenValue{kind, joined({value.sign < 0 ? "-" : "", fractionOf(numerator, denominator)})};
}

}  // namespace tavi::exact
