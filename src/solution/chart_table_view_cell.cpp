#include "solution/chart_table_view_cell.h"

namespace tavi {

ChartTableViewCell::ChartTableViewCell(QQuickItem* parent) : TableViewCell(parent) {
  constexpr std::chrono::milliseconds startDelay{500};
  delay_.setSingleShot(true);
  delay_.setInterval(startDelay);
  connect(&delay_, &QTimer::timeout, this, &ChartTableViewCell::startChartAnimation);
}

}  // namespace tavi
