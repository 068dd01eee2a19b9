#include "charts/chart_manager.h"

#include <cmath>
#include <type_traits>

#include "number/fatal_stop.h"

namespace tavi {

namespace {

DistributionFunctionPresentationView presentationView(const DistributionFunctionChartData& data) {
  if (data.dataSet.empty() || data.dataSet.front().empty())
    fatalStop("a distribution function without a step");
  return DistributionFunctionPresentationView(data.dataSet.front().back());
}

}  // namespace

const ChartOptions* optionsOf(const ChartView& view) {
  return std::visit(
      [](const auto& each) -> const ChartOptions* {
        if constexpr (std::is_base_of_v<CoordinateChartView, std::decay_t<decltype(each)>>)
          return &each.options;
        return nullptr;
      },
      view);
}

std::optional<ChartView> ChartManager::chartView(const ChartRow& charts) {
  std::optional<ChartView> view;
  if (charts.size() == 1) view = singleChartView(*charts.front());
  return view ? view : multiChartView(charts);
}

std::optional<ChartView> ChartManager::singleChartView(const ChartData& chart) {
  if (const auto* line = dynamic_cast<const LineChartData*>(&chart)) {
    return LineChartManager::lineChartView(*line);
  }
  if (const auto* angle = dynamic_cast<const UnitCircleChartData*>(&chart)) {
    return UnitCircleChartManager::unitCircleChartView(*angle);
  }
  if (const auto* graph = dynamic_cast<const TrigonometricChartData*>(&chart)) {
    return SplineChartManager::trigonometricChartView(*graph);
  }
  if (const auto* histogram = dynamic_cast<const HistogramChartData*>(&chart)) {
    return AreaChartManager::histogramChartView(*histogram);
  }
  if (const auto* steps = dynamic_cast<const DistributionFunctionChartData*>(&chart)) {
    if (steps->isPresentationView) return presentationView(*steps);
    return LineChartManager::distributionChartView(*steps);
  }
  if (const auto* tree = dynamic_cast<const BernoulliDistributionTreeChartData*>(&chart)) {
    return TreeChartManager::treeChartView(*tree);
  }
  return std::nullopt;
}

std::optional<ChartView> ChartManager::multiChartView(const ChartRow& charts) {
  std::vector<const CommonSplineChartData*> curves;
  for (const auto& chart : charts) {
    curves.push_back(dynamic_cast<const CommonSplineChartData*>(chart.get()));
    if (curves.back() == nullptr) return std::nullopt;
  }
  if (curves.empty()) return std::nullopt;
  return SplineChartManager::commonSplineChartView(curves);
}

ChartFrame ChartManager::chartFrame(const ChartData& first, double rowWidth) {
  constexpr double margin = 0.05;
  constexpr double content = 0.9;
  const double heightOfWidth = 1 / first.frameRatio;
  if (!std::isfinite(heightOfWidth * rowWidth)) fatalStop("a row of charts without end");
  return {.x = margin * rowWidth,
          .y = heightOfWidth * margin * rowWidth,
          .width = content * rowWidth,
          .height = heightOfWidth * content * rowWidth};
}

}  // namespace tavi
