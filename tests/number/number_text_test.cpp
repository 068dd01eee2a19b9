#include "number/number_text.h"

#include <cmath>
#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "number/fatal_stop.h"

namespace tavi {
namespace {

constexpr double inf = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

TEST(NumberText, DoubleTextIsShortestWithAPointAndChangesFormAtTheLimits) {
  const std::pair<double, const char*> cases[] = {
      {3, "3.0"},
      {0.5, "0.5"},
      {0.1 + 0.2, "0.30000000000000004"},
      {0, "0.0"},
      {-0.0, "-0.0"},
      {0.0001, "0.0001"},
      {0.00009999, "9.999e-05"},
      {1e-07, "1e-07"},
      {-1.5e-05, "-1.5e-05"},
      {9999999999999998, "9999999999999998.0"},
      {1e16, "1e+16"},
      {-1.2345678901234568e+17, "-1.2345678901234568e+17"},
      {1e100, "1e+100"},
      {5e-324, "5e-324"},
      {inf, "inf"},
      {-inf, "-inf"},
      {nan, "nan"},
  };
  for (const auto& [value, text] : cases) EXPECT_EQ(doubleText(value), text);
}

struct Printed {
  double value;
  int digits;
  const char* text;
};

TEST(NumberText, DecimalTextRoundsHalfToEvenOnTheShortestDigits) {
  const Printed cases[] = {
      {2443895.82, 10, "2443895.82"},
      {1234567.5, 10, "1234567.5"},
      {0.1 + 0.2, 10, "0.3"},
      {std::sqrt(2.0), 10, "1.4142135624"},
      // Ties, which the exact binary value would send the other way for 0.15 and 2.675.
      {0.5, 0, "0"},
      {1.5, 0, "2"},
      {2.5, 0, "2"},
      {0.15, 1, "0.2"},
      {0.25, 1, "0.2"},
      {2.675, 2, "2.68"},
      {2.665, 2, "2.66"},
      {0.00000000005, 10, "0"},
      {0.00000000015, 10, "0.0000000002"},
      {0.000000000050000001, 10, "0.0000000001"},
      // Carries.
      {0.96, 1, "1"},
      {999.96, 1, "1000"},
      {1999.6, 0, "2000"},
      {0.6, 0, "1"},
      {0.06, 0, "0"},
      // Both ends of the range.
      {0, 10, "0"},
      {-0.0, 10, "-0"},
      {-0.00000000001, 10, "-0"},
      {-3, 10, "-3"},
      {1e12, 10, "1000000000000"},
      {1.5e21, 10, "1500000000000000000000"},
      {5e-324, 10, "0"},
      {inf, 10, "∞"},
      {-inf, 10, "-∞"},
      {-nan, 10, "NaN"},
  };
  for (const Printed& printed : cases) {
    EXPECT_EQ(decimalText(printed.value, printed.digits), printed.text) << printed.digits << " digits";
  }
}

TEST(NumberText, GeneralTextKeepsSixDigitsAndReadsBack) {
  EXPECT_EQ(generalText(123456.7), "123457");
  EXPECT_EQ(generalText(-999999), "-999999");
  EXPECT_EQ(generalText(1e6), "1e+06");
  EXPECT_EQ(generalText(-0.0), "-0");
  EXPECT_EQ(generalText(1234567.5), "1.23457e+06");
  EXPECT_EQ(generalText(1e-7), "1e-07");
  EXPECT_EQ(readGeneralText("1e+06"), 1000000.0);
  for (const double value : {-1.79769e+308, 5e-324, inf, -inf, 999999.0}) {
    EXPECT_EQ(readGeneralText(generalText(value)), value);
    EXPECT_EQ(roundedToSixDigits(value), value);
  }
  EXPECT_EQ(roundedToSixDigits(1000001), 1000000);
  EXPECT_EQ(roundedToSixDigits(0.12345678), 0.123457);
  EXPECT_TRUE(std::isnan(readGeneralText(generalText(nan))));
}

TEST(NumberText, ReadsAWholeTextOrNothing) {
  const std::string many(400, '9');
  const std::pair<std::string, double> accepted[] = {
      {"2.5", 2.5}, {"-3", -3},         {"+4", 4},
      {"3.", 3},    {".5", 0.5},        {"007", 7},
      {many, inf},  {"-" + many, -inf}, {"0." + std::string(400, '0') + "1", 0},
  };
  for (const auto& [text, value] : accepted) EXPECT_EQ(readNumber(text), value) << text;
  using namespace std::string_literals;
  for (const std::string& text :
       {""s, " 1"s, "\t1"s, "1 "s, "."s, "-"s, "5-3"s, "1,5"s, "--1"s, "\0"s, "1\0"s, "1a"s}) {
    EXPECT_EQ(readNumber(text), std::nullopt) << '"' << text << '"';
  }
}

TEST(FatalStop, ConversionsStopOutsideTheirRange) {
  EXPECT_EQ(truncatedToInt64(-2.9), -2);
  EXPECT_EQ(truncatedToInt64(-0x1p63), std::numeric_limits<std::int64_t>::min());
  for (const double value : {0x1p63, -0x1.0000000000001p63, inf, nan}) {
    EXPECT_THROW(truncatedToInt64(value), FatalStop);
  }
  std::int64_t counter = std::numeric_limits<std::int64_t>::max();
  EXPECT_THROW(increment(counter), FatalStop);
}

}  // namespace
}  // namespace tavi
