#pragma once

#include <limits>
#include <vector>

#include <QtGui/QColor>
#include <QtGui/QGlyphRun>
#include <QtGui/QPainterPath>

#include "typeset/layout.h"

class QPainter;

namespace tavi::typeset {

/// The colour of text and what lies behind it.
struct Ink {
  QColor text = Qt::black;
  QColor background = Qt::white;
};

/// `color` itself where it has a contrast of at least 4.5 to 1 against `background`, else the same hue
/// lightened or darkened until it has. The one place where the colours of a working are fitted to the
/// appearance.
QColor legibleColor(const QColor& color, const QColor& background);

/// A layout made ready to be drawn any number of times and on any device: item, image, SVG or PDF. Needs a
/// QGuiApplication and must not outlive it; making and drawing may happen in different threads.
class MathPicture {
 public:
  MathPicture() = default;
  explicit MathPicture(const Layout& layout);

  /// Draws with the start of the baseline at `origin`. What lies wholly outside `left` to `right`, counted
  /// from the start of the line, may be left out.
  void paint(QPainter& painter, const QPointF& origin, const Ink& ink,
             double left = -std::numeric_limits<double>::infinity(),
             double right = std::numeric_limits<double>::infinity()) const;

 private:
  // One call of the painter: a run of glyphs, or an outline.
  struct Stroke {
    double left = 0;
    double right = 0;
    Color color;
    QGlyphRun run;
    QPainterPath outline;
  };

  void addRuns(const Layout& layout);
  void addOutlines(const Layout& layout);

  std::vector<Stroke> strokes_;
};

}  // namespace tavi::typeset
