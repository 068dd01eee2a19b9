#include <cmath>

#include "charts/chart_manager.h"

namespace tavi {

LineChartView LineChartManager::lineChartView(const LineChartData& data) {
  constexpr double pointRadius = 5;
  const double limit = std::abs(data.axisLimit);
  const std::string& color = data.chartColorHexCode;
  return {{chartOptions(ChartType::line, data.chartTitle,
                        {{data.dataName, color, {data.startPoint, data.endPoint}},
                         {data.dataName, color, data.markedPoints, pointRadius}},
                        xAxis("x", -limit, limit, false), yAxis(data.dataName, -limit, limit))}};
}

}  // namespace tavi
