#include "charts/chart_manager.h"
#include "number/text.h"

namespace tavi {

SplineChartView SplineChartManager::commonSplineChartView(
    const std::vector<const CommonSplineChartData*>& curves) {
  std::vector<ChartSeries> series;
  series.reserve(curves.size());
  for (const CommonSplineChartData* curve : curves) {
    series.push_back(
        {replacedAll(curve->dataName, "function", "func"), curve->chartColorHexCode, curve->dataSet});
  }
  return {{chartOptions(ChartType::spline, curves.front()->chartTitle, std::move(series),
                        xAxis("x", {}, {}, false), yAxis("y", {}, {}))}};
}

}  // namespace tavi
