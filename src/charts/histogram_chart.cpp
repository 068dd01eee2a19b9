#include <algorithm>

#include "charts/chart_manager.h"
#include "number/fatal_stop.h"

namespace tavi {

AreaChartView AreaChartManager::histogramChartView(const HistogramChartData& data) {
  const auto x = [](const ChartPoint& point) { return point.empty() ? 0 : point.front(); };
  std::vector<ChartSeries> series;
  for (const HistogramChartData::Series& record : data.dataSetWithColorTheme) {
    const std::vector<ChartPoint>& values = record.dataValues;
    if (values.empty()) fatalStop("a histogram without values");
    const auto [least, greatest] = std::ranges::minmax_element(values, {}, x);
    std::vector<ChartPoint> drawn{{x(*least) - 1, 0}};
    drawn.insert(drawn.end(), values.begin(), values.end());
    drawn.push_back({x(*greatest) + 1, 0});
    series.push_back({data.dataName, record.hexColor, std::move(drawn)});
  }
  return {{chartOptions(ChartType::area, data.chartTitle, std::move(series),
                        xAxis(data.xAxisName, {}, {}, false), yAxis(data.dataName, {}, {}))}};
}

}  // namespace tavi
