#pragma once

#include "charts/chart_data.h"
#include "solution/table_view_cell.h"

namespace tavi {

/// The row of charts. It is blank until the views of the charts are there.
class ChartTableViewCell : public TableViewCell {
  Q_OBJECT
  QML_ELEMENT

 public:
  using TableViewCell::TableViewCell;

  /// Takes the charts that share the row.
  void configure(const ChartRow& charts) { charts_ = charts; }
  const ChartRow& charts() const { return charts_; }

  /// Lets the charts draw themselves; to be called once the row is in sight.
  void startChartAnimation() { emit chartAnimationStarted(); }

 signals:
  void chartAnimationStarted();

 private:
  ChartRow charts_;
};

}  // namespace tavi
