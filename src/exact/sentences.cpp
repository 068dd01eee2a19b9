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
    {"ruleZeroToTheZero", "The working takes zero to the power of zero as 1."},
    {"ruleInfinity", "The working counts numbers over 10¹² as infinite."},
    {"ruleZero", "The working writes numbers below 10⁻¹⁰ as 0."},
    {"rulePi", "π is carried along as a factor and not raised."},
    {"ruleVariable", "A variable is carried along as a factor and not raised."},
    {"ruleSymbolInExponent", "π or a variable in the exponent or in the index is left out."},
    {"ruleBrackets", "The working writes a power without the brackets that its base needs."},
    {"ruleSecondSolution",
     "A root is not negative; the second result is the other solution of the equation."},
    {"ruleExpansion", "The working keeps six significant digits of a decimal that it turns into a fraction."},
    {"ruleCopies", "A power whose exponent is no whole number is written out as if it were one."},
    {"ruleDenominator", "The working writes denominators with six significant digits."},
    {"ruleOverflow", "A step is beyond what the working can calculate, and it goes on with infinity."},
    {"rulePlaces", "The working rounds what it writes and goes on with all digits."},
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
