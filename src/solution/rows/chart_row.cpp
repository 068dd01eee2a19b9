#include "solution/rows/chart_row.h"

#include <QPainter>

#include "charts/view/chart_picture.h"

namespace tavi {

namespace {

class ChartRowPainter : public RowPainter {
 public:
  ChartRowPainter(const ChartRow& charts, double rowHeight) : rowHeight_(rowHeight) {
    if (const std::optional<ChartView> view = ChartManager::chartView(charts))
      view_ = std::make_shared<ChartView>(*view);
  }

  double height(double) const override { return rowHeight_; }

  void paint(QPainter& painter, QSizeF size, const RowPalette& palette) const override {
    if (view_) paintChartRow(painter, size, view_, palette.chart);
  }

  std::chrono::milliseconds settlingTime() const override { return std::chrono::seconds(2); }

 private:
  double rowHeight_;
  std::shared_ptr<const ChartView> view_;  // None for charts that have none together.
};

}  // namespace

std::unique_ptr<RowPainter> makePainter(const ChartTableViewCell& row, double rowHeight) {
  return std::make_unique<ChartRowPainter>(row.chartData, rowHeight);
}

}  // namespace tavi
