#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <memory>
#include <optional>

#include "charts/chart_manager.h"
#include "charts/view/chart_palette.h"
#include "charts/view/coordinate_picture.h"

class QPainter;

namespace tavi {

/// What changes of a chart while it is looked at.
struct ChartMoment {
  double progress = 1;                 ///< Of its animation, from 0 to 1.
  std::optional<QPointF> scroll = {};  ///< What of a tree lies at the upper left corner; absent: as it opens.
  std::optional<ChartMark> mark = {};  ///< The point that is pointed at.
};

/// A chart on its card, in a size and in its colours. Lengths are device-independent
/// pixels. It may be drawn in any thread.
class ChartPicture {
 public:
  ChartPicture(std::shared_ptr<const ChartView> view, QSizeF size, const ChartPalette& palette);

  void paint(QPainter& painter, const ChartMoment& moment = {}) const;

  const ChartView& view() const { return *view_; }
  QSizeF size() const { return size_; }

  /// What is scrolled under the frame, which is no smaller; the size itself but for a tree.
  QSizeF contentSize() const;

  /// The layout of a chart with coordinates; none for any other.
  const CoordinatePicture* coordinates() const { return coordinates_ ? &*coordinates_ : nullptr; }

 private:
  std::shared_ptr<const ChartView> view_;
  QSizeF size_;
  ChartPalette palette_;
  std::optional<CoordinatePicture> coordinates_;
};

/// Where a chart stands in a row of that size: within a margin of a twentieth at each side.
QRectF chartFrameIn(QSizeF row);

/// Draws a view into a row of that size.
void paintChartRow(QPainter& painter, QSizeF size, std::shared_ptr<const ChartView> view,
                   const ChartPalette& palette, const ChartMoment& moment = {});

}  // namespace tavi
