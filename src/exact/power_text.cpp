#include "exact/power_text.h"

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

#include <flint/longlong.h>

namespace tavi::exact {

namespace {

constexpr std::size_t digitsOfPlace = 16;
constexpr mp_limb_t placeBase = 10'000'000'000'000'000;

// A natural number in places of 16 decimal digits, each in two limbs, so that a product of binary numbers has
// room for the sums of the places: multiplications cost somewhat more than in binary, but a long power needs
// no conversion, which costs many times as much.
class Decimal {
 public:
  explicit Decimal(const fmpz* number) {
    const std::string text = textOf(number);
    for (std::string_view rest = text; !rest.empty();) {
      const std::size_t start = rest.size() - std::min(rest.size(), digitsOfPlace);
      addPlace(std::stoul(std::string(rest.substr(start))));
      rest = rest.substr(0, start);
    }
  }

  void square() {
    std::vector<mp_limb_t> product(2 * limbs_.size());
    mpn_sqr(product.data(), limbs_.data(), size());
    limbs_ = std::move(product);
    carry();
  }
  void multiply(const Decimal& other) {
    std::vector<mp_limb_t> product(limbs_.size() + other.limbs_.size());
    const auto& [shorter, longer] =
        std::minmax(limbs_, other.limbs_, [](const auto& a, const auto& b) { return a.size() < b.size(); });
    mpn_mul(product.data(), longer.data(), static_cast<mp_size_t>(longer.size()), shorter.data(),
            static_cast<mp_size_t>(shorter.size()));
    limbs_ = std::move(product);
    carry();
  }

  std::string text() const {
    std::string text;
    text.reserve(limbs_.size() / 2 * digitsOfPlace);
    for (std::size_t i = limbs_.size(); i > 0; i -= 2) {
      const std::string place = std::to_string(limbs_[i - 2]);
      if (!text.empty()) text.append(digitsOfPlace - place.size(), '0');
      text += place;
    }
    return text;
  }

 private:
  mp_size_t size() const { return static_cast<mp_size_t>(limbs_.size()); }
  void addPlace(mp_limb_t digits) {
    limbs_.push_back(digits);
    limbs_.push_back(0);
  }

  // Brings every place below its base again. A million digits are far from filling the two limbs.
  void carry() {
    mp_limb_t high = 0;
    mp_limb_t low = 0;
    const auto takePlace = [&] {
      mp_limb_t place = 0;
      const mp_limb_t rest = high % placeBase;
      high /= placeBase;
      udiv_qrnnd(low, place, rest, low, placeBase);
      return place;
    };
    for (std::size_t i = 0; i < limbs_.size(); i += 2) {
      add_ssaaaa(high, low, high, low, limbs_[i + 1], limbs_[i]);
      limbs_[i] = takePlace();
      limbs_[i + 1] = 0;
    }
    while (high != 0 || low != 0) addPlace(takePlace());
    while (limbs_.size() > 2 && limbs_[limbs_.size() - 2] == 0) limbs_.resize(limbs_.size() - 2);
  }

  std::vector<mp_limb_t> limbs_;  // the lowest place first
};

}  // namespace

std::string powerText(std::span<const Factor> factors) {
  constexpr double longestBinary = 100'000;  // bits
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
  std::vector<Decimal> bases;
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
  }
  return number.text();
}

}  // namespace tavi::exact
