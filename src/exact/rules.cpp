#include "exact/rules.h"

#include <array>

namespace tavi::exact {

namespace {

constexpr auto kinds = std::to_array<RuleKind>({
    {rule::zeroToTheZero, "ruleZeroToTheZero", "The working takes zero to the power of zero as 1.",
     Mode::power, "0", "0"},
    {rule::infinity, "ruleInfinity", "The working counts numbers over 10¹² as infinite.", Mode::power, "13",
     "9"},
    {rule::zero, "ruleZero", "The working writes numbers below 10⁻¹⁰ as 0.", Mode::power, "-11", "10"},
    {rule::pi, "rulePi", "π is carried along as a factor and not raised.", Mode::power, "2", "π"},
    {rule::variable, "ruleVariable", "A variable is carried along as a factor and not raised.", Mode::power,
     "2", "x"},
    {rule::symbolInExponent, "ruleSymbolInExponent",
     "π or a variable in the exponent or in the index is left out.", Mode::power, "π", "2"},
    {rule::brackets, "ruleBrackets", "The working writes a power without the brackets that its base needs.",
     Mode::power, "2", "-3"},
    {rule::secondSolution, "ruleSecondSolution",
     "A root is not negative; the second result is the other solution of the equation.", Mode::root, "2",
     "9"},
    {rule::expansion, "ruleExpansion",
     "The working keeps six significant digits of a decimal that it turns into a fraction.", Mode::power, "2",
     "1.2345678/3"},
    {rule::copies, "ruleCopies",
     "A power whose exponent is no whole number is written out as if it were one.", Mode::power,
     "100000.5/50000", "2"},
    {rule::denominator, "ruleDenominator", "The working writes denominators with six significant digits.",
     Mode::power, "7", "1/11"},
    {rule::overflow, "ruleOverflow",
     "A step is beyond what the working can calculate, and it goes on with infinity.", Mode::power,
     "731/1000", "4846"},
    {rule::places, "rulePlaces", "The working rounds what it writes and goes on with all digits.", Mode::root,
     "6", "999999999999"},
});

}  // namespace

std::span<const RuleKind> ruleKinds() {
  return kinds;
}

}  // namespace tavi::exact
