#pragma once

#include <QFont>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <optional>
#include <vector>

#include "charts/chart_options.h"
#include "charts/view/axis_scale.h"
#include "typeset/layout.h"

namespace tavi {

/// What stands beside a grid line: a text, or where there is none a formula.
struct AxisText {
  QString text;
  typeset::Layout formula;
  QRectF box;
  double ascent = 0;  ///< From the upper edge of the box to the line that it stands on.
};

/// A text in one line, cut where it has no room.
struct PlacedText {
  QString text;
  QFont font;
  QPointF place;  ///< Of the upper left corner.
};

/// In front of its name it leaves room for a symbol.
struct LegendEntry {
  PlacedText name;
  std::size_t series = 0;
};

inline constexpr double legendSymbolWidth = 20;
inline constexpr double legendSymbolRoom = legendSymbolWidth + 8;

/// Where the parts of a chart with coordinates stand in a size. Lengths are device-independent pixels.
struct CoordinateLayout {
  CoordinateLayout(const ChartOptions& options, QSizeF size);

  QRectF plot;
  AxisScale x;
  AxisScale y;
  std::vector<AxisText> xTexts;
  std::vector<AxisText> yTexts;
  PlacedText title;
  PlacedText xTitle;
  PlacedText yTitle;
  std::vector<LegendEntry> legend;

  /// Of values along one axis.
  double placeX(double value) const;
  double placeY(double value) const;

  /// Of a point that is no gap, however far it is outside the plot.
  std::optional<QPointF> place(const ChartPoint& point) const;

  /// Whether a place is one of the plot, whose edges belong to it.
  bool isInPlot(QPointF place) const;
};

}  // namespace tavi
