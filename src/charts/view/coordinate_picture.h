#pragma once

#include <QPointF>
#include <QSizeF>
#include <QStringList>
#include <optional>
#include <vector>

#include "charts/chart_options.h"
#include "charts/view/chart_palette.h"
#include "charts/view/coordinate_layout.h"

class QPainter;

namespace tavi {

/// A point of a series, both by number.
struct ChartMark {
  std::size_t series = 0;
  std::size_t point = 0;

  bool operator==(const ChartMark&) const = default;
};

/// A chart with coordinates in a size, in device-independent pixels.
class CoordinatePicture {
 public:
  /// The options must stay as long as the picture.
  CoordinatePicture(const ChartOptions& options, QSizeF size, const ChartPalette& palette);

  /// Draws the chart, and crosshair and tooltip at a point that is marked.
  void paint(QPainter& painter, const std::optional<ChartMark>& mark) const;

  /// The point that is drawn nearest to a place; absent if none is drawn.
  std::optional<ChartMark> nearest(QPointF place) const;

  /// The first point that is drawn; absent if none is.
  std::optional<ChartMark> first() const;

  /// The next point that is drawn in the series of a marked one, and the nearest one of the next series: on
  /// by 1 or back by -1. The marked one where there is none.
  ChartMark nextPoint(ChartMark mark, int way) const;
  ChartMark nextSeries(ChartMark mark, int way) const;

 private:
  std::optional<ChartMark> nearestOf(std::size_t series, QPointF place) const;
  std::optional<QPointF> placeIfDrawn(const ChartMark& mark) const;
  std::vector<std::vector<QPointF>> runs(const ChartSeries& series) const;

  void paintGrid(QPainter& painter) const;
  void paintMinorMarks(QPainter& painter) const;
  void paintTexts(QPainter& painter) const;
  void paintLegend(QPainter& painter) const;
  void paintJoined(QPainter& painter, const ChartSeries& series) const;
  void paintDots(QPainter& painter, const ChartSeries& series) const;
  void paintCrosshair(QPainter& painter, QPointF place) const;
  void paintTooltip(QPainter& painter, const ChartMark& mark, QPointF place) const;

  const ChartOptions& options_;
  QSizeF size_;
  ChartPalette palette_;
  CoordinateLayout layout_;
};

/// What the tooltip of a point says, in lines.
QStringList tooltipLines(const ChartOptions& options, const ChartPoint& point);

}  // namespace tavi
