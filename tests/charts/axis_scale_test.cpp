#include "charts/view/axis_scale.h"

#include <algorithm>
#include <random>
#include <set>

#include <gtest/gtest.h>

namespace tavi {
namespace {

using Texts = std::vector<std::string>;

Texts texts(const AxisScale& scale) {
  Texts list;
  for (const AxisLabel& label : scale.labels) list.push_back(label.text);
  return list;
}

AxisScale freeScale(double low, double high, int mostLabels, bool endsOnTicks = true) {
  return axisScale(yAxis("", {}, {}), {.data = ValueRange{low, high},
                                       .endsOnTicks = endsOnTicks,
                                       .mostLabels = mostLabels,
                                       .thousandsSeparator = ","});
}

TEST(AxisScale, LabelsAFreeAxisWithRoundNumbers) {
  struct Case {
    double low, high;
    int most;
    Texts labels;
  };
  const Case cases[] = {
      {0, 10, 7, {"0", "2", "4", "6", "8", "10"}},
      {-0.9, 1, 5, {"−1", "−0.5", "0", "0.5", "1"}},
      {0, 0.375, 7, {"0", "0.1", "0.2", "0.3", "0.4"}},
      {0.2, 0.2, 7, {"0", "0.1", "0.2", "0.3", "0.4"}},
      {0, 0, 3, {"−1", "0", "1"}},
      {0, 60000, 4, {"0", "20,000", "40,000", "60,000"}},
      {0, 3e-5, 4, {"0", "1", "2", "3"}},
      {0, 9, 3, {"0", "5", "10"}},
  };
  for (const auto& [low, high, most, labels] : cases) EXPECT_EQ(texts(freeScale(low, high, most)), labels);
  EXPECT_EQ(freeScale(0, 3e-5, 4).exponent, -5);
  EXPECT_EQ(texts(freeScale(0.5, 3.5, 7, false)), (Texts{"0.5", "1", "1.5", "2", "2.5", "3", "3.5"}));
}

TEST(AxisScale, LabelsSomeOfTheTicksThatAreFixed) {
  const auto fixed = [](double limit, int most) {
    return axisScale(yAxis("", -limit, limit), {.mostLabels = most});
  };
  EXPECT_EQ(texts(fixed(10, 7)), (Texts{"−10", "−5", "0", "5", "10"}));
  EXPECT_EQ(texts(fixed(10, 4)), (Texts{"−10", "0", "10"}));
  EXPECT_EQ(texts(fixed(1.0 / 3, 3)), (Texts{"−0.3333", "0", "0.3333"}));
  EXPECT_EQ(fixed(10, 4).gridValues.size(), 9U);
  EXPECT_EQ(fixed(-2, 7).range.low, -2) << "upside down";
}

TEST(AxisScale, LabelsMultiplesOfPiAndReachesToOneThatIsNear) {
  const auto multiples = [](double low, double high) {
    return axisScale(xAxis("", {}, {}, true), {.data = ValueRange{low, high}, .mostLabels = 7});
  };
  EXPECT_EQ(texts(multiples(0, 6.272)), (Texts{"0", "π/2", "π", "3π/2", "2π"}));
  EXPECT_GE(multiples(0, 6.272).range.high, 6.28);
  EXPECT_EQ(texts(multiples(-7, 7)), (Texts{"-2π", "-π", "0", "π", "2π"}));
}

// Whatever there is to show, the labels are few, different, in order and in few digits.
TEST(AxisScale, CopesWithAnyNumbers) {
  std::mt19937 random(1);
  const auto number = [&random] {
    const double size = std::pow(10.0, std::uniform_int_distribution(-310, 308)(random));
    return size * std::uniform_real_distribution(-1.0, 1.0)(random);
  };
  for (int round = 0; round < 20000; ++round) {
    double low = number();
    double high = round % 3 == 0 ? low * (1 + 1e-8) : number();
    if (low > high) std::swap(low, high);
    const int most = std::uniform_int_distribution(3, 7)(random);
    const AxisScale scale = freeScale(low, high, most, round % 2 == 0);
    ASSERT_LE(scale.labels.size(), static_cast<std::size_t>(most)) << low << ' ' << high;
    ASSERT_LT(scale.range.low, scale.range.high);
    const Texts labels = texts(scale);
    ASSERT_EQ(std::set(labels.begin(), labels.end()).size(), labels.size()) << low << ' ' << high;
    ASSERT_TRUE(std::ranges::is_sorted(scale.gridValues));
    for (const std::string& label : labels) {
      for (const char* wrong : {"e", "∞", "NaN"}) ASSERT_EQ(label.find(wrong), std::string::npos) << label;
      ASSERT_LT(label.size(), 20U) << label << ' ' << low << ' ' << high;
    }
  }
}

TEST(AxisScale, TellsNumbersInFewDigits) {
  const std::pair<double, std::string> cases[] = {{0, "0"},
                                                  {-0.25, "−0.25"},
                                                  {0.29400000000000004, "0.294"},
                                                  {1.5707963, "1.5708"},
                                                  {123456.7, "123457"},
                                                  {0.00001, "0.00001"},
                                                  {-1.2e9, "−1.2·10⁹"},
                                                  {3e-7, "3·10⁻⁷"}};
  for (const auto& [value, text] : cases) EXPECT_EQ(shortNumber(value), text);
}

}  // namespace
}  // namespace tavi
