#pragma once

#include <QObject>
#include <memory>

#include "charts/chart_data.h"
#include "solution/rows/row_painter.h"

namespace tavi {

/// The row of charts that share it.
struct ChartTableViewCell {
  Q_GADGET
  Q_PROPERTY(tavi::ChartRow chartData MEMBER chartData)

 public:
  static constexpr const char* kind = "chart";

  ChartRow chartData;

  bool operator==(const ChartTableViewCell&) const = default;
};

/// The charts as they stand when nothing moves any more.
std::unique_ptr<RowPainter> makePainter(const ChartTableViewCell& row, double rowHeight);

}  // namespace tavi
