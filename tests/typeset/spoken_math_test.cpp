#include "typeset/spoken_math.h"

#include <gtest/gtest.h>

#include "typeset/parser.h"

namespace tavi::typeset {
namespace {

TEST(SpokenMath, SaysWhatALineSays) {
  struct Case {
    std::string_view latex;
    std::string_view words;
  };
  const Case cases[] = {
      {"\\sqrt{2}", "square root of 2"},
      {"\\sqrt[2]{16}", "square root of 16"},
      {"\\sqrt[\\;\\color{#ff3333}{3}]{27}", "cube root of 27"},
      {"\\sqrt{x+1}", "square root of x plus 1 end of root"},
      {"\\sqrt[3]{x+1}", "cube root of x plus 1 end of root"},
      {"\\sqrt[n]{2}", "root with index n of 2"},
      {"\\sqrt[n]{x+1}", "root with index n of x plus 1 end of root"},
      {"\\frac{3}{4}", "3 over 4"},
      {"\\frac{2\\pi}{3}", "fraction 2 pi over 3 end of fraction"},
      {"64^{2} = 4096", "64 to the power of 2 equals 4096"},
      {"2^{-1}", "2 to the power of minus 1 end of power"},
      {"\\frac{3}{2}^{2}", "fraction 3 over 2 end of fraction to the power of 2"},
      {"=\\left( 2 \\right) \\left( 2 \\right) ", "equals 2 times 2"},
      {"\\left( \\frac{2}{3} \\right)\\left(-8\\right)",
       "open parenthesis 2 over 3 close parenthesis times open parenthesis minus 8 close parenthesis"},
      {"0.5 \\approx x_{1}", "0.5 is approximately x sub 1"},
      {"\\left|x\\right|\\le\\infty",
       "absolute value of x end of absolute value is less than or equal to infinity"},
      {"\\sin x\\text{ or }y", "sine x  or  y"},
      {"2\\foo", "2 \\foo"},
      {"", ""},
  };
  for (const auto& [latex, words] : cases) {
    SCOPED_TRACE(latex);
    EXPECT_EQ(spokenMath(parse(latex).list), words);
  }
}

TEST(SpokenMath, SpeaksTheLanguageOfItsPhrases) {
  const auto german = [](const Phrase& phrase) -> std::string {
    if (phrase.key == "mathFraction") return "%1 durch %2";
    if (phrase.key == "mathEquals") return "gleich";
    return englishPhrase(phrase);
  };
  EXPECT_EQ(spokenMath(parse("\\frac{3}{4}=0.75").list, german), "3 durch 4 gleich 0.75");
}

}  // namespace
}  // namespace tavi::typeset
