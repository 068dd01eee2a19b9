#include "exact/sentences.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace tavi::exact {

namespace {

struct Words {
  std::string_view key, english;
};

constexpr auto table = std::to_array<Words>({
    {"exactCondition", "%1"},
    {"exactZeroToTheZero", "Zero to the power of zero has no value."},
    {"exactDivisionByZero", "Zero cannot be divided by, and a negative power of zero would do so."},
    {"exactRootWithIndexZero", "There is no root with the index zero."},
    {"exactEvenRootOfNegative", "An even root of a negative number is no real number."},
    {"exactIrrationalPowerOfNegative", "A negative number has no real power with an irrational exponent."},
    {"exactNegativeToVariable", "Whether a power of a negative number is real depends on the exponent."},
    {"exactTooLarge", "The number has more digits than can be written out."},
    {"exactEvenRoot",
     "The root sign means the number that is not negative. The equation %1 is solved by two numbers: %2 and "
     "%3."},
    {"exactEvenRootOfZero", "The equation %1 is solved by zero alone."},
});

}  // namespace

std::string_view englishWords(std::string_view key) {
  const auto* const words = std::ranges::find(table, key, &Words::key);
  return words != table.end() ? words->english : key;
}

std::string filled(std::string_view words, const std::vector<std::string>& formulas) {
  std::string text;
  for (std::size_t i = 0; i < words.size(); ++i) {
    const std::size_t place = i + 1 < words.size() && words[i] == '%'
                                  ? static_cast<std::size_t>(words[i + 1] - '1')
                                  : formulas.size();
    if (place < formulas.size()) {
      text += formulas[place];
      ++i;
    } else {
      text += words[i];
    }
  }
  return text;
}

}  // namespace tavi::exact
