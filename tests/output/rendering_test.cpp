#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include "number/fatal_stop.h"
#include "output/string_output.h"

namespace tavi {
namespace {

constexpr double inf = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

struct Variable {
  const char* symbol = "";
  double power = 1;
};

Digit number(double z, double n, int pisAbove = 0, int pisBelow = 0, Variable above = {},
             Variable below = {}) {
  Digit digit(z, n);
  digit.zConstants.assign(static_cast<std::size_t>(pisAbove), piConstant());
  digit.nConstants.assign(static_cast<std::size_t>(pisBelow), piConstant());
  digit.zVariable = above.symbol;
  digit.powerOfZVariable = above.power;
  digit.nVariable = below.symbol;
  digit.powerOfNVariable = below.power;
  return digit;
}

struct Written {
  Digit digit;
  const char* latex;
  DigitStyle style = {};
};

TEST(DigitLatex, WritesSignsFractionsConstantsAndVariables) {
  const Written cases[] = {
      {number(3, 1), "3"},
      {number(-3, 1), "-3"},
      {number(3, 4), "\\frac{3}{4}"},
      {number(-3, 4), "-\\frac{3}{4}"},
      {number(3, -4), "-\\frac{3}{4}"},
      {number(-3, -4), "\\frac{3}{4}"},
      {number(0.5, -4), "-\\frac{0.5}{4}"},
      {number(3, 0.5), "\\frac{3}{0.5}"},
      {number(0, 5), "0"},
      {number(1.4142135623730951, 1), "1.4142135624"},
      {number(1, 1, 1), "\\pi"},
      {number(-1, 1, 1), "-\\pi"},
      {number(1, 1, 2), "\\pi\\pi"},
      {number(2, 3, 1), "\\frac{2\\pi}{3}"},
      {number(2, 1, 0, 1), "\\frac{2}{\\pi}"},
      {number(11, 1, 1), "11\\pi"},
      {number(1, 2, 0, 0, {"x"}), "\\frac{1}{2}  x"},
      {number(1, 1, 0, 0, {"x"}), " x"},
      {number(-1, 1, 0, 0, {"x", 2}), "- x^{2.0}"},
      {number(3, 1, 0, 0, {}, {"x"}), "3 \\frac{1}{x}"},
      {number(3, 1, 0, 0, {"y"}, {"x", 3}), "3 \\frac{y}{x^{3.0}}"},
      {number(3, 123456.7), "\\frac{3}{123457}"},
      {number(3, 1234567), "\\frac{3}{1234570}"},
  };
  for (const Written& written : cases) EXPECT_EQ(TaviStringOutput::digitLatex(written.digit), written.latex);
}

TEST(DigitLatex, ItsLimitsTestTheWholeValue) {
  const Written cases[] = {
      {number(2e13, 1), "\\infty"},
      {number(-2e13, 1), "-\\infty"},
      {number(1e12, 1), "1000000000000"},
      {number(1.0000001e12, 1), "\\infty"},
      {number(4e11, 1, 1), "\\infty"},
      {number(-1e12, 1), "-1000000000000"},
      {number(5e-11, 1), "0"},
      {number(-5e-11, 1), "0"},
      {number(1e-10, 1), "0.0000000001"},
      {number(1, 0), "\\infty"},
      {number(nan, 1), "NaN"},
      {number(1, 0, 0, 0, {"x"}), "\\infty  x"},
      {number(5e-11, 1), "0", {.keepSigns = true}},
      {number(0, 0), "\\frac{0}{0}"},
  };
  for (const Written& written : cases) {
    EXPECT_EQ(TaviStringOutput::digitLatex(written.digit, written.style), written.latex);
  }
}

TEST(DigitLatex, StylesChangeBracketsSignsAndUnits) {
  const Written cases[] = {
      {number(-3, 1), "\\left(-3\\right)", {.withBrackets = std::nullopt}},
      {number(3, 1), "3", {.withBrackets = std::nullopt}},
      {number(3, 1), "\\left(3\\right)", {.withBrackets = true}},
      {number(3, 1), "\\frac{3}{1}", {.forceFraction = true}},
      {number(-3, -4), "\\frac{-3}{-4}", {.keepSigns = true}},
      {number(-1, 1, 1), "-\\pi", {.keepSigns = true}},
      {number(-0.0, 1), "-0", {.keepSigns = true}},
      {number(-3, 1), "\\left(-3\\right) cm", {.unit = "cm", .withBrackets = std::nullopt}},
      {number(2.0 / 3, 1), "0.67", {.maximumFractionDigits = 2}},
  };
  for (const Written& written : cases) {
    EXPECT_EQ(TaviStringOutput::digitLatex(written.digit, written.style), written.latex);
  }
}

TEST(DigitLatex, StopsAtWhatCannotBeWritten) {
  EXPECT_THROW(TaviStringOutput::digitLatex(Digit()), FatalStop);
  EXPECT_THROW(TaviStringOutput::digitLatex(number(1, nan)), FatalStop);
  EXPECT_THROW(TaviStringOutput::digitLatex(number(1, inf), {.keepSigns = true}), FatalStop);
}

TEST(NumberLatex, WritesValuesWithTheirConstantVariableAndUnit) {
  const std::vector<NaturalConstant> pi{piConstant()};
  struct Case {
    double value;
    const char* latex;
    NumberStyle style = {};
  };
  const Case cases[] = {
      {4, "4"},
      {-4, "(-4)"},
      {5e-11, "0"},
      {inf, "\\infty"},
      {-1.1e12, "-\\infty"},
      {1.1e12, "1100000000000", {.convertToInfinity = false}},
      {nan, "NaN"},
      {1, "\\pi", {.constants = pi}},
      {-1, "(-\\pi)", {.constants = pi}},
      {-2, "(-2\\pi)", {.constants = pi}},
      {2, "2\\pi", {.constants = pi}},
      {-2, "-2\\pi", {.constants = pi, .noBrackets = true}},
      {-1, "-1\\pi", {.constants = pi, .noBrackets = true}},
      {1, "x", {.variable = "x"}},
      {3, "3 x", {.variable = "x"}},
      {0, "0 x cm", {.unit = "cm", .variable = "x"}},
  };
  for (const Case& written : cases) {
    EXPECT_EQ(TaviStringOutput::numberLatex(written.value, written.style), written.latex);
  }
}

TEST(CancelledFractionLatex, DividesBothParts) {
  EXPECT_EQ(
      TaviStringOutput::cancelledFractionLatex(number(-6, 8, 1, 1, {"x"}), std::vector{piConstant()}, 2),
      "\\frac{(-6\\pi) : 2\\pi}{8\\pi : 2\\pi} x");
}

}  // namespace
}  // namespace tavi
