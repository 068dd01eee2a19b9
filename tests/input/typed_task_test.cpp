#include "input/typed_task.h"

#include <gtest/gtest.h>

#include "input/typing_hint.h"
#include "solver/rehearsal.h"

namespace tavi {
namespace {

const std::string square = "\\color{#8e8e93}{□}";

TEST(TypedTask, StandsAsTheWorkingWillBeginOrAsItIsTypedWithAHint) {
  struct Case {
    Mode mode;
    const char* first;
    const char* second;
    std::string latex;
    const char* hint;
  };
  const Mode power = Mode::power;
  const Mode root = Mode::root;
  const Case cases[] = {
      {power, "", "", square + "^{" + square + "}", "hintBaseAndExponent"},
      {power, "", "2", "2^{" + square + "}", "hintExponent"},
      {power, "3", "", square + "^{3}", "hintBase"},
      {root, "", "", "\\sqrt[2]{" + square + "}", "hintRadicand"},
      {root, "3", "", "\\sqrt[3]{" + square + "}", "hintRadicand"},
      {power, "3/", "", square + "^{\\frac{3}{" + square + "}}", "hintFraction"},
      {power, "", "-", "-" + square + "^{" + square + "}", "hintDigit"},
      {power, "3/", "2", "2^{\\frac{3}{" + square + "}}", "hintFraction"},
      {power, "/2", "2.50", "2.5^{\\frac{" + square + "}{2}}", "hintFraction"},
      {power, "-", "2", "2^{-" + square + "}", "hintDigit"},
      {power, ".", "π", "\\pi^{.}", "hintDigit"},
      {power, "1.2.3", "2", "2^{1.2.3}", "hintOnePoint"},
      {power, "1/2/3", "2", "2^{1/\\frac{2}{3}}", "hintOneBar"},
      {power, "1/0", "2", "2^{\\frac{1}{0}}", "hintZero"},
      {power, "2", "ππ", "\\pi \\pi ^{2}", "hintOnePi"},
      {power, "2", "π2", "\\pi 2^{2}", "hintOrder"},
      {power, "2", "xy", "xy^{2}", "hintOneLetter"},
      {power, "\\}{2/", "\\alpha%0", "0^{\\frac{2}{" + square + "}}", "hintFraction"},
  };
  for (const Case& each : cases) {
    const TypedTask task = typedTask(each.mode, each.first, each.second);
    EXPECT_EQ(typedLatex(task), each.latex) << each.first << " " << each.second;
    EXPECT_EQ(typingHint(each.mode, task), each.hint) << each.first << " " << each.second;
  }
}

TEST(TypedTask, OneGoesOnWhereATextIsAtFault) {
  for (const std::string each : {"|", "3|", "3/|", "|/3", "-|/3", "3/-|", "1.5.|2", "-.|", "5/0|", "1/2/|3",
                                 "xy|", "ππ|/3", "3/2π2|", "π2|", "1/2x3|/4", "2-|3"}) {
    std::string text = each;
    const std::size_t place = text.find('|');
    text.erase(place, 1);
    EXPECT_EQ(faultPlace(text), place) << each;
  }
}

}  // namespace
}  // namespace tavi
