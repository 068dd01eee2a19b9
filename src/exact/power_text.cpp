#include "exact/power_text.h"

#include <algorithm>
#include <deque>
#include <string_view>
#include <utility>

#include <flint/fmpz_poly.h>

namespace tavi::exact {

namespace {

// The size that makes the largest powers cheapest.
constexpr std::size_t digitsOfPlace = 300;

// A natural number as a polynomial in 10^300: a long power is multiplied out about as fast as in binary and
// needs no conversion but those of its places, which for the whole would cost many times as much.
class Decimal {
 public:
  explicit Decimal(const fmpz* number) {
    fmpz_poly_init(places_);
    fmpz_pow_ui(base_, base_, digitsOfPlace);
    const std::string text = textOf(number);
    Integer place;
    slong index = 0;
    for (std::string_view rest = text; !rest.empty(); ++index) {
      const std::size_t start = rest.size() - std::min(rest.size(), digitsOfPlace);
      fmpz_set_str(place, std::string(rest.substr(start)).c_str(), 10);
      fmpz_poly_set_coeff_fmpz(places_, index, place);
      rest = rest.substr(0, start);
    }
  }
  Decimal(const Decimal&) = delete;
  Decimal& operator=(const Decimal&) = delete;
  ~Decimal() { fmpz_poly_clear(places_); }

  void square() { fmpz_poly_sqr(places_, places_); }
  void multiply(const Decimal& other) { fmpz_poly_mul(places_, places_, other.places_); }

  /// Brings every place below its base again.
  void carry() {
    Integer rest;
    slong index = 0;
    for (; index < fmpz_poly_length(places_); ++index) {
      fmpz* place = fmpz_poly_get_coeff_ptr(places_, index);
      fmpz_add(rest, rest, place);
      fmpz_fdiv_qr(rest, place, rest, base_);
    }
    for (Integer place; rest != 0; ++index) {
      fmpz_fdiv_qr(rest, place, rest, base_);
      fmpz_poly_set_coeff_fmpz(places_, index, place);
    }
  }

  std::string text() const {
    std::string text;
    text.reserve(static_cast<std::size_t>(fmpz_poly_length(places_)) * digitsOfPlace);
    for (slong i = fmpz_poly_length(places_); i-- > 0;) {
      const std::string place = textOf(fmpz_poly_get_coeff_ptr(places_, i));
      if (!text.empty()) text.append(digitsOfPlace - place.size(), '0');
      text += place;
    }
    return text;
  }

 private:
  fmpz_poly_t places_;
  Integer base_{10};
};

}  // namespace

std::string powerText(std::span<const Factor> factors) {
  constexpr double longestBinary = 30'000;  // bits
  double bits = 0;
  for (const Factor& factor : factors) {
    bits += fmpz_get_d(factor.exponent) * static_cast<double>(fmpz_bits(factor.base));
  }
  if (bits < longestBinary) {
    Integer number(1);
    Integer power;
    for (const Factor& factor : factors) {
      fmpz_pow_ui(power, factor.base, fmpz_get_ui(factor.exponent));
      fmpz_mul(number, number, power);
    }
    return textOf(number);
  }
  // By squaring, for all factors at once.
  Decimal number{Integer(1)};
  std::deque<Decimal> bases;
  flint_bitcnt_t exponentBits = 0;
  for (const Factor& factor : factors) {
    bases.emplace_back(factor.base);
    exponentBits = std::max(exponentBits, fmpz_bits(factor.exponent));
  }
  for (flint_bitcnt_t bit = exponentBits; bit-- > 0;) {
    number.square();
    for (std::size_t i = 0; i < factors.size(); ++i) {
      if (fmpz_tstbit(factors[i].exponent, bit) != 0) number.multiply(bases[i]);
    }
    number.carry();
  }
  return number.text();
}

}  // namespace tavi::exact
