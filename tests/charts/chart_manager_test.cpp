#include "charts/chart_manager.h"

#include <cmath>
#include <limits>
#include <numbers>

#include <gtest/gtest.h>

#include "charts/tick_labels.h"
#include "number/fatal_stop.h"

namespace tavi {
namespace {

using enum TrigonometricType;

constexpr double infinity = std::numeric_limits<double>::infinity();

SplineChartView graph(std::optional<TrigonometricType> type, std::optional<double> length,
                      double amplitude = 1) {
  TrigonometricChartData data;
  data.lengthOfGraph = length;
  data.periodLength = 2 * std::numbers::pi;
  data.amplitude = amplitude;
  data.type = type;
  return SplineChartManager::trigonometricChartView(data);
}

TEST(TrigonometricChart, TakesMorePointsForALongerGraph) {
  struct Case {
    TrigonometricType type;
    double length;
    std::size_t points;
  };
  for (const auto& [type, length, points] : {Case{sin, 6.28, 65},
                                             {sin, 0, 5},
                                             {cos, 0.39, 5},
                                             {cos, 0.4, 7},
                                             {cos, -6.28, 65},
                                             {tan, 6.28, 801},
                                             {tan, 0, 5}}) {
    EXPECT_EQ(graph(type, length).options.series.at(0).points.size(), points) << length;
  }
}

TEST(TrigonometricChart, FollowsItsFunctionToThreePlaces) {
  const auto points = graph(cos, 4 * std::numbers::pi, 7).options.series.at(0).points;
  EXPECT_NEAR(points.back().at(0), 4 * std::numbers::pi, 0.0005 * static_cast<double>(points.size()));
  for (const ChartPoint& point : points) EXPECT_NEAR(point.at(1), 7 * std::cos(point.at(0)), 0.00051);
}

TEST(TrigonometricChart, StopsWhereThereIsNothingOrNoEnd) {
  EXPECT_THROW(graph(sin, {}), FatalStop);
  EXPECT_THROW(graph({}, 6.28), FatalStop);
  EXPECT_THROW(graph(sin, infinity), FatalStop);
  EXPECT_THROW(graph(sin, std::nan("")), FatalStop);
  EXPECT_THROW(graph(cos, 1e15), FatalStop) << "points without end";
  EXPECT_THROW(graph(tan, -1), FatalStop) << "no step is short enough";
  EXPECT_THROW(graph(tan, 1, 0), FatalStop) << "ticks without a distance";
  EXPECT_THROW(graph(tan, 1, 1e308), FatalStop) << "an axis without end";
}

TEST(ChartAxes, HaveTicksAQuarterOfTheMaximumApart) {
  EXPECT_EQ(yAxis("", -2, 2).tickPositions, (std::vector<double>{-2, -1.5, -1, -0.5, 0, 0.5, 1, 1.5, 2}));
  EXPECT_EQ(yAxis("", 2, -2).tickPositions, (std::vector<double>{2, 1.5, 1, 0.5, 0, -0.5, -1, -1.5, -2}));
  EXPECT_EQ(yAxis("", 3, 4).tickPositions, (std::vector<double>{3, 4}));
  EXPECT_EQ(yAxis("", -8, 8).minorTickInterval, 0.4F);
  EXPECT_TRUE(xAxis("", -8, {}, false).hasAutomaticMinorTicks);
  EXPECT_THROW(yAxis("", -1e300, 1), FatalStop);
  EXPECT_THROW(yAxis("", -1, 0), FatalStop);
}

TEST(ChartAxes, NameTheNearestHalfOfPi) {
  constexpr double pi = std::numbers::pi;
  const std::pair<double, std::string> labels[] = {{0, "0"},
                                                   {0.7, "0"},
                                                   {-0.7, "0"},
                                                   {1.5705, "π/2"},
                                                   {-1.5705, "-π/2"},
                                                   {3.141, "π"},
                                                   {-pi, "-π"},
                                                   {4.7115, "3π/2"},
                                                   {2 * pi, "2π"},
                                                   {-2.5 * pi, "-5π/2"},
                                                   {-1e4 * pi, "-10000π"},
                                                   {pi / 4, "π/2"},
                                                   {-pi / 4, "0"}};
  for (const auto& [value, label] : labels) EXPECT_EQ(piTickLabel(value), label) << value;
}

TEST(ChartManager, FindsAViewForWhatCanBeShownTogether) {
  const auto line = std::make_shared<LineChartData>();
  line->axisLimit = 1;
  const auto spline = std::make_shared<CommonSplineChartData>();
  const auto isSpline = [](const ChartRow& row) {
    const auto view = ChartManager::chartView(row);
    return view && std::holds_alternative<SplineChartView>(*view);
  };
  EXPECT_FALSE(ChartManager::chartView({}));
  EXPECT_FALSE(ChartManager::chartView({std::make_shared<ChartData>()}));
  EXPECT_TRUE(ChartManager::chartView({line}));
  EXPECT_FALSE(ChartManager::chartView({line, line}));
  EXPECT_FALSE(ChartManager::chartView({spline, line}));
  EXPECT_TRUE(isSpline({spline}));
  EXPECT_TRUE(isSpline({spline, spline}));
}

TEST(ChartManager, StopsAtARowWithoutEnd) {
  ChartData chart;
  chart.frameRatio = 0;
  EXPECT_THROW(ChartManager::chartFrame(chart, 412), FatalStop);
}

TEST(Histogram, StandsOnTheAxisAtBothEnds) {
  HistogramChartData data;
  data.dataSetWithColorTheme = {{"#ff0000", {{3, 0.5}, {}, {7, 0.25}}}};
  EXPECT_EQ(AreaChartManager::histogramChartView(data).options.series.at(0).points,
            (std::vector<ChartPoint>{{-1, 0}, {3, 0.5}, {}, {7, 0.25}, {8, 0}}));
  data.dataSetWithColorTheme.push_back({"#00ff00", {}});
  EXPECT_THROW(AreaChartManager::histogramChartView(data), FatalStop);
}

TEST(DistributionFunction, StopsWithoutAStepAtItsEnds) {
  DistributionFunctionChartData data;
  const auto show = [&] { return ChartManager::singleChartView(data); };
  EXPECT_THROW(show(), FatalStop);
  data.dataSet = {{0, 0.5}, {}};
  EXPECT_THROW(show(), FatalStop);
  data.isPresentationView = true;
  const auto view = show();
  EXPECT_EQ(std::get<DistributionFunctionPresentationView>(*view).values[1], "0.5;");
  data.dataSet = {{}, {0, 0.5}};
  EXPECT_THROW(show(), FatalStop);
  data.dataSet = {};
  EXPECT_THROW(show(), FatalStop);
}

}  // namespace
}  // namespace tavi
