#include "charts/chart_manager.h"
#include "number/fatal_stop.h"

namespace tavi {

LineChartView LineChartManager::distributionChartView(const DistributionFunctionChartData& data) {
  constexpr double stepRadius = 5;
  const std::vector<ChartPoint>& steps = data.dataSet;
  if (steps.empty() || steps.front().empty() || steps.back().empty()) {
    fatalStop("a distribution function without a step at either end");
  }
  const double before = data.isConverse ? 1 : 0;
  std::vector<ChartPoint> drawn{{steps.front().front() - 1, before}};
  drawn.insert(drawn.end(), steps.begin(), steps.end());
  drawn.push_back({steps.back().front() + 1, 1 - before});
  const std::string& color = data.chartColorHexCode;
  return {{chartOptions(
      ChartType::line, data.chartTitle,
      {{data.dataName, color, steps, stepRadius, true}, {data.dataName, color, std::move(drawn), {}, true}},
      xAxis(data.xAxisName, {}, {}, false), yAxis(data.dataName, {}, {}))}};
}

}  // namespace tavi
