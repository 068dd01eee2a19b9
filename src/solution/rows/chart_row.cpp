#include "solution/rows/chart_row.h"

#include <QPainter>

namespace tavi {

namespace {

class ChartRowPainter : public RowPainter {
 public:
  explicit ChartRowPainter(double rowHeight) : rowHeight_(rowHeight) {}

  double height(double) const override { return rowHeight_; }
  void paint(QPainter& painter, QSizeF size, const RowPalette& palette) const override {
    painter.fillRect(QRectF({}, size), palette.card);
  }
  std::chrono::milliseconds settlingTime() const override { return std::chrono::seconds(2); }

 private:
  double rowHeight_;
};

}  // namespace

std::unique_ptr<RowPainter> makePainter(const ChartTableViewCell&, double rowHeight) {
  return std::make_unique<ChartRowPainter>(rowHeight);
}

}  // namespace tavi
