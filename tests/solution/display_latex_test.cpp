#include "solution/display_latex.h"

#include <random>
#include <string>
#include <utility>

#include <gtest/gtest.h>

namespace tavi {
namespace {

TEST(DisplayLatex, TidiesWhatTheSolverLeavesBehind) {
  const std::pair<const char*, const char*> cases[] = {
      {"", ""},
      // Zero fractions.
      {"1.0", "1"},
      {"1.0+2.0", "1+2"},
      {"10.05", "10.05"},
      {"1.0.0", "1"},
      {"2.0x", "2x"},
      {"2.05+1.0 x", "2.05+1.0 x"},  // The first .0 shields the second.
      {"2.05+1.0", "2.05+1"},        // It does not shield the end.
      {"=\\sqrt[3.0]{4^{\\color{#5774f7}{3.0}}}", "=\\sqrt[3]{4^{\\;\\color{#5774f7}{3}}}"},
      {".00.0", ".00"},
      {"1.0*...0 1.0x71x-", "1\\cdot x71x-"},  // Dropping one .0 brings rules back.
      // Signs.
      {"a--b", "a+b"},
      {"a+-b", "a-b"},
      {"a- -b", "a+b"},
      {"a---b", "a-b"},
      {"a+ - +b", "a-b"},
      {"x = +5", "x =5"},
      {"x=+5", "x=5"},
      {"3*4", "3\\cdot 4"},
      // Parentheses, and the labels that keep theirs.
      {"(a)", "\\left(a\\right)"},
      {"\\left( 2 \\right)", "\\left( 2 \\right)"},
      {"I) (a)", "I) \\left(a\\right)"},
      {"VIII)", "VIII)"},
      {"a I)", "a I\\right)"},
      {"I) and I)", "I) and I)"},
      // Blanks, variables, full stops.
      {"a   b", "a b"},
      {"\\left(  x \\right)", "\\left( x \\right)"},
      {"3 1x", "3x"},
      {"3 + 0x", "3 +"},
      {"1. 5", "1 5"},
      {"a\\quad b", "a\\quad  b"},
      {"2.0\\quad", "2\\quad  "},
      {"\\color{#009900}{8}", "\\;\\color{#009900}{8}"},
  };
  for (const auto& [latex, shown] : cases) EXPECT_EQ(displayLatex(latex), shown) << latex;
}

// A line of random pieces, most of which some rule looks for.
std::string randomLine(std::mt19937& random) {
  constexpr std::string_view pieces[] = {"(",   ")",  "\\left", "\\right", ".0", ".0", "1.0", " 1.0",
                                         "0.0", ".",  " ",      "\\quad",  "+",  "-",  "=",   "*",
                                         "x",   "1x", "I",      "V",       "0",  "7",  "{",   "}"};
  std::string line;
  for (std::size_t length = random() % 24; length > 0; --length) line += pieces[random() % std::size(pieces)];
  return line;
}

TEST(DisplayLatex, EndsInAFixedPoint) {
  std::mt19937 random(7);
  for (int i = 0; i < 20000; ++i) {
    const std::string line = randomLine(random);
    const std::string shown = displayLatex(line);
    EXPECT_EQ(displayLatex(shown), shown) << line;
  }
}

}  // namespace
}  // namespace tavi
