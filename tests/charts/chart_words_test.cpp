#include "charts/view/chart_words.h"

#include <numbers>

#include <gtest/gtest.h>

namespace tavi {
namespace {

TEST(ChartWords, TellATitleTheRangesAndEachSeries) {
  CommonSplineChartData parabola;
  parabola.chartTitle = "Where %1 meet";
  parabola.dataName = "f";
  parabola.dataSet = {{-1, 1}, {0.5, 0.25}, {}, {2, 4}};
  CommonSplineChartData point;
  point.dataName = "P";
  point.dataSet = {{1, 1e-9}};
  CommonSplineChartData nothing;
  nothing.dataName = "g";
  EXPECT_EQ(chartWords(SplineChartManager::commonSplineChartView({&parabola, &point, &nothing})),
            "Where %1 meet. curve. x from −1 to 2. y from 1·10⁻⁹ to 4. "
            "f: 3 points, from 1 at −1 to 4 at 2, lowest 0.25 at 0.5, highest 4 at 2. "
            "P: one point, 1·10⁻⁹ at 1. g: no points");

  LineChartData line;
  line.dataName = "h";
  line.startPoint = {0, 0};
  line.endPoint = {1, 1};
  line.axisLimit = -8;
  EXPECT_TRUE(chartWords(LineChartManager::lineChartView(line))
                  .starts_with("line chart. x from −8 to 8. h from −8 to 8. h: 2 points"));
}

TEST(ChartWords, TellTheOtherKinds) {
  BernoulliDistributionTreeChartData dice;
  dice.chartTitle = "Dice";
  dice.probabilityOfSuccess = 0.25;
  dice.trials = 3;
  EXPECT_EQ(chartWords(TreeChartManager::treeChartView(dice)),
            "Dice. probability tree of 3 trials, probability of success 0.25, of failure 0.75");
  EXPECT_EQ(chartWords(UnitCircleChartManager::unitCircleChartView(
                {450, 2.5 * std::numbers::pi, 90, 1, Quadrant::first})),
            "unit circle, angle 450°, full turns 1 and 90°, cosine 0, sine 1. quadrant I");
  EXPECT_EQ(chartWords(UnitCircleChartView()), "unit circle");
  EXPECT_NE(chartWords(DistributionFunctionPresentationView(0.25)).find("0.25"), std::string::npos);
}

TEST(ChartWords, AreSaidInAnyLanguage) {
  const auto german = [](const typeset::Phrase& phrase) {
    return phrase.key == "chartTree" ? std::string("%2, %9 und %1 Versuche, 100%")
                                     : std::string(phrase.english);
  };
  EXPECT_EQ(chartWords(TreeChartManager::treeChartView({}), german), "0, %9 und 0 Versuche, 100%");
}

}  // namespace
}  // namespace tavi
