#pragma once

#include <QColor>
#include <QSizeF>
#include <chrono>

#include "charts/view/chart_palette.h"

class QPainter;

namespace tavi {

/// The colours of a row in a picture.
struct RowPalette {
  QColor page;  ///< Around the card.
  QColor card;
  QColor text;
  QColor hairline;
  QColor accent;
  ChartPalette chart;

  /// The colours of the appearance in force.
  static RowPalette current();

  /// Black on white.
  static RowPalette printed();
};

/// What a row is drawn for. Lengths are device-independent pixels.
struct RowTarget {
  double viewWidth = 0;  ///< Of the page.
  /// A formula that is wider goes on in further lines. A picture of twice as many pixels is as wide as
  /// viewers open.
  double widestLine = 8000;
};

/// One row of a table as a picture, on any painter and without a screen. Lengths are device-independent
/// pixels. Made and measured in the main thread; painted in any, one at a time.
class RowPainter {
 public:
  RowPainter() = default;
  virtual ~RowPainter() = default;
  RowPainter(const RowPainter&) = delete;
  RowPainter& operator=(const RowPainter&) = delete;

  /// The width at which nothing of the row is cut; 0 where any will do.
  virtual double width() const { return 0; }

  /// The height of the row at that width; 0 for a row that is not there in pictures.
  virtual double height(double width) const = 0;

  /// Draws the row in its last state into that size.
  virtual void paint(QPainter& painter, QSizeF size, const RowPalette& palette) const = 0;

  /// How long a picture of the table waits for the row.
  virtual std::chrono::milliseconds settlingTime() const { return {}; }
};

}  // namespace tavi
