#include <limits>
#include <numbers>
#include <optional>

#include <gtest/gtest.h>

#include "number/digit.h"
#include "number/digit_analyser.h"
#include "number/fatal_stop.h"
#include "number/math_operation.h"
#include "output/string_output.h"

namespace tavi {
namespace {

Digit withConstants(double z, double n, std::vector<NaturalConstant> above,
                    std::vector<NaturalConstant> below = {}) {
  Digit digit(z, n);
  digit.zConstants = std::move(above);
  digit.nConstants = std::move(below);
  return digit;
}

TEST(Digit, ValueTakesInTheConstantsAndLeavesOutTheVariable) {
  EXPECT_EQ(Digit().value(), std::nullopt);
  EXPECT_EQ(Digit(3.0, 4).value(), 0.75);
  EXPECT_EQ(withConstants(3, 4, {piConstant()}).value(), 2.356194490192345);
  EXPECT_EQ(withConstants(3, 4, {}, {piConstant()}).value(), 0.75 / std::numbers::pi);
  Digit threeX(3.0);
  threeX.zVariable = "x";
  threeX.powerOfZVariable = 1;
  EXPECT_EQ(threeX.value(), 3.0);
  EXPECT_EQ(Digit(1.0, 0).value(), std::numeric_limits<double>::infinity());
}

TEST(Digit, InvertExchangesBothSidesWhole) {
  Digit digit = withConstants(2, 3, {piConstant()});
  digit.zVariable = "x";
  digit.powerOfZVariable = 1;
  digit.invert();
  EXPECT_EQ(digit.z, 3.0);
  EXPECT_EQ(digit.n, 2.0);
  EXPECT_TRUE(digit.zConstants.empty());
  EXPECT_EQ(digit.nConstants, std::vector{piConstant()});
  EXPECT_EQ(digit.zVariable, "");
  EXPECT_EQ(digit.nVariable, "x");
  EXPECT_EQ(digit.powerOfNVariable, 1.0);
  Digit unknown;
  EXPECT_THROW(unknown.invert(), FatalStop);
}

class MathOperation : public testing::Test {
 protected:
  TaviStringOutput output;
  TaviMathOperation operation{output};
};

struct Cancelled {
  double z, n;
  std::int64_t divisor;
  std::optional<std::pair<double, double>> reduced;
};

TEST_F(MathOperation, CancelsByTheGreatestCommonDivisorOfTheTruncatedParts) {
  const Cancelled cases[] = {
      {6, 8, 2, {{3, 4}}},
      {6, -8, -2, {{-3, 4}}},
      {3, -4, -1, {}},
      {7, 7, 7, {{1, 1}}},
      {7, 1, 1, {}},
      {1, 7, 1, {}},
      {0, 5, 1, {}},
      {3, 0, 1, {}},
      {2.5, 2.5, 2, {{1.25, 1.25}}},
      {100000000000, 777777777777, 1, {}},
      {600000000000, 400000000000, 200000000000, {{3, 2}}},
      {std::numeric_limits<double>::infinity(), 4, 1, {}},
  };
  for (const Cancelled& expected : cases) {
    const Digit digit(expected.z, expected.n);
    const auto cancellation = operation.cancelDown(digit);
    EXPECT_EQ(operation.divisor, expected.divisor) << expected.z << '/' << expected.n;
    ASSERT_EQ(cancellation.has_value(), expected.reduced.has_value()) << expected.z << '/' << expected.n;
    EXPECT_EQ(digit.z, expected.z);
    if (!cancellation) continue;
    EXPECT_EQ(cancellation->digit->z, expected.reduced->first);
    EXPECT_EQ(cancellation->digit->n, expected.reduced->second);
  }
  EXPECT_EQ(operation.cancelDown(Digit(std::nullopt, 4)), std::nullopt);
}

TEST_F(MathOperation, CancellingStopsWhereNoDivisorCanBeSearched) {
  EXPECT_THROW(operation.cancelDown(Digit(1.5, 3)), FatalStop);
  EXPECT_THROW(operation.cancelDown(Digit(3.0, -1.000001)), FatalStop);
  EXPECT_THROW(operation.cancelDown(Digit(1e19, 3)), FatalStop);
  EXPECT_THROW(operation.cancelDown(Digit(3.0, std::numeric_limits<double>::infinity())), FatalStop);
  EXPECT_THROW(operation.cancelDown(Digit(-0x1p63, -0x1p63)), FatalStop);
  EXPECT_NO_THROW(operation.cancelDown(Digit(-0x1p63, 3)));
}

TEST_F(MathOperation, CancelsAConstantOnlyWhereBothSidesAreAlike) {
  const auto both = operation.cancelDown(withConstants(1, 1, {piConstant()}, {piConstant()}));
  ASSERT_TRUE(both);
  EXPECT_TRUE(both->digit->zConstants.empty());
  EXPECT_TRUE(both->digit->nConstants.empty());
  EXPECT_EQ(both->latex, "\\frac{\\pi : \\pi}{\\pi : \\pi} =  1");

  const auto one = operation.cancelDown(withConstants(2, 4, {piConstant()}));
  ASSERT_TRUE(one);
  EXPECT_EQ(one->digit->zConstants, std::vector{piConstant()});
  EXPECT_EQ(one->latex, "\\frac{2\\pi : 2}{4 : 2} =  \\frac{\\pi}{2}");
}

TEST_F(MathOperation, RoundingKnowsWhenNothingIsLost) {
  struct Case {
    int places;
    double value, rounded;
    bool isApproximate;
  };
  const Case cases[] = {
      {2, 3.14159, 3.14, true},
      {2, 3.14, 3.14, false},
      {2, 3.140000001, 3.14, false},
      {2, 3.139999999, 3.14, false},
      {2, 1e-07, 0.0, true},
      {2, 0.125, 0.13, true},
      {2, -0.125, -0.13, true},
      {5, 0.1 + 0.2, 0.3, false},
      {5, 1e-06, 0.0, true},
      {5, std::numeric_limits<double>::infinity(), std::numeric_limits<double>::infinity(), false},
  };
  for (const Case& expected : cases) {
    const RoundedValue result = TaviMathOperation::roundedIfNearlyExact(expected.places, expected.value);
    EXPECT_EQ(result.value, expected.rounded) << expected.value;
    EXPECT_EQ(result.isApproximate, expected.isApproximate) << expected.value;
  }
}

TEST_F(MathOperation, RaisingLeavesConstantsAlone) {
  const auto power = TaviMathOperation::raised(withConstants(2, 3, {piConstant()}), 2);
  EXPECT_EQ(power->z, 4.0);
  EXPECT_EQ(power->n, 9.0);
  EXPECT_EQ(power->zConstants, std::vector{piConstant()});
  EXPECT_THROW(TaviMathOperation::raised(Digit(), 2), FatalStop);
}

TEST(DigitAnalyser, CountsThePlacesOfPlainFractionParts) {
  struct Case {
    const char *z, *n;
    double places;
  };
  const Case cases[] = {{"1.5", "1", 1},     {"1.25", "2.5", 2},    {"3", "4", 0},        {"1e-05", "1", 0},
                        {"1.5e-05", "1", 0}, {"1.5e-05", "2.5", 1}, {"0.000123", "1", 6}, {"-0.5", "nan", 1},
                        {"25...", "1", 2},   {".", "1", 0}};
  for (const Case& expected : cases) {
    EXPECT_EQ(TaviDigitAnalyser::decimalPlaces(expected.z, expected.n), expected.places)
        << expected.z << ' ' << expected.n;
  }
}

}  // namespace
}  // namespace tavi
