#pragma once

#include <QTimer>

#include "charts/chart_data.h"
#include "solution/table_view_cell.h"

namespace tavi {

/// The row of charts. It is blank until the views of the charts are there.
class ChartTableViewCell : public TableViewCell {
  Q_OBJECT
  QML_ELEMENT

 public:
  explicit ChartTableViewCell(QQuickItem* parent = nullptr);

  /// Takes the charts that share the row.
  void configure(const ChartRow& charts) { charts_ = charts; }
  const ChartRow& charts() const { return charts_; }

  /// Lets the charts draw themselves: at once, or half a second from now, when the row has come to rest.
  void startChartAnimation() { emit chartAnimationStarted(); }
  void scheduleChartAnimation() { delay_.start(); }

 signals:
  void chartAnimationStarted();

 private:
  ChartRow charts_;
  QTimer delay_;
};

}  // namespace tavi
