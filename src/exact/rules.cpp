#include "exact/rules.h"

#include <array>

namespace tavi::exact {

namespace {

constexpr auto kinds = std::to_array<RuleKind>({
    {rule::zeroToTheZero, "ruleZeroToTheZero", Mode::power, "0", "0"},
    {rule::infinity, "ruleInfinity", Mode::power, "13", "9"},
    {rule::zero, "ruleZero", Mode::power, "-11", "10"},
    {rule::pi, "rulePi", Mode::power, "2", "π"},
    {rule::variable, "ruleVariable", Mode::power, "2", "x"},
    {rule::symbolInExponent, "ruleSymbolInExponent", Mode::power, "π", "2"},
    {rule::brackets, "ruleBrackets", Mode::power, "2", "-3"},
    {rule::secondSolution, "ruleSecondSolution", Mode::root, "2", "9"},
    {rule::expansion, "ruleExpansion", Mode::power, "2", "1.2345678/3"},
    {rule::copies, "ruleCopies", Mode::power, "100000.5/50000", "2"},
    {rule::denominator, "ruleDenominator", Mode::power, "7", "1/11"},
    {rule::overflow, "ruleOverflow", Mode::power, "731/1000", "4846"},
    {rule::places, "rulePlaces", Mode::root, "6", "999999999999"},
});

}  // namespace

std::span<const RuleKind> ruleKinds() {
  return kinds;
}

std::vector<std::string_view> sentenceKeys(Rules rules) {
  std::vector<std::string_view> keys;
  for (const RuleKind& kind : ruleKinds()) {
    if ((rules & kind.rule) != 0) keys.push_back(kind.key);
  }
  return keys;
}

}  // namespace tavi::exact
