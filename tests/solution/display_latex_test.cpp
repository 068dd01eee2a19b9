#include "solution/display_latex.h"

#include <cctype>
#include <random>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "number/text.h"
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

// The rules as plain passes, one ".0" at a time: what the rewrite must come to, however it saves passes.
std::string inPlainPasses(std::string line) {
  const auto replace = [&line](std::string_view occurrence, std::string_view replacement) {
    line = replacedAll(line, occurrence, replacement);
  };
  std::string before;
  do {
    before = line;
    replace("  ", " ");
    replace("\\quad", "\\quad ");
    replace(". ", " ");
    replace("(", "\\left(");
    replace(")", "\\right)");
    replace("\\left\\left", "\\left");
    replace("\\right\\right", "\\right");
    replace(" 1x", "x");
    replace(" 0x", "");
    replace(".0\\quad", "\\quad");
    if (line.ends_with(".0")) line.resize(line.size() - 2);
    const std::size_t at = line.find(".0");
    if (at != std::string::npos && !(at + 2 < line.size() && std::isdigit(line[at + 2]))) line.erase(at, 2);
    for (const auto& [occurrence, replacement] : {std::pair{"+-", "-"},
                                                  {"-+", "-"},
                                                  {"+ -", "-"},
                                                  {"- +", "-"},
                                                  {"+ +", "+"},
                                                  {"++", "+"},
                                                  {"--", "+"},
                                                  {"- -", "+"},
                                                  {"*", "\\cdot "},
                                                  {"= +", "="},
                                                  {"=+", "="}}) {
      replace(occurrence, replacement);
    }
    for (const std::string numeral : {"I", "II", "III", "IV", "V", "VI", "VII", "VIII", "IX", "X"}) {
      if (line.starts_with(numeral + "\\right)")) replace(numeral + "\\right)", numeral + ")");
    }
  } while (line != before);
  return line;
}

TEST(DisplayLatex, SavingPassesChangesNothing) {
  std::mt19937 random(8);
  for (int i = 0; i < 20000; ++i) {
    const std::string line = randomLine(random);
    ASSERT_EQ(displayLatex(line), inPlainPasses(line)) << line;
  }
}

}  // namespace
}  // namespace tavi
