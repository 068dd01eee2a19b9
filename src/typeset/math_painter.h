#pragma once

#include <limits>
#include <optional>
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

/// Reads the font that formulas are drawn with, unless that was done. The first picture does it too, but the
/// thread must outlive all drawing: before another one draws, the main thread reads it.
void readMathFont();

/// A layout made ready to be drawn any number of times and on any device: item, image, SVG or PDF. Needs a
/// QGuiApplication and must not outlive it; making and drawing may happen in different threads.
///
/// On pixels, baselines, rules and the horizontal stems of glyphs come to stand on whole device pixels,
/// whatever the scale, so that they are not grey; no place moves sideways, and none by more than half a
/// pixel. Turned lines, SVG and PDF are drawn as they are laid out.
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
  // What is drawn at once: a run of glyphs, or a figure of an outline, a rule or both.
  struct Stroke {
    double left = 0;
    double right = 0;
    Color color;
    QGlyphRun run{};
    QPainterPath outline{};
    QRectF rule{};
  };

  // As it is drawn at a scale: in device pixels, counted from a baseline that stands on a whole one.
  static Stroke snapped(const Stroke& stroke, double scale);
  // As it is laid out.
  static Stroke joined(const Stroke& stroke);
  const std::vector<Stroke>& strokesAt(std::optional<double> scale) const;
  void addRuns(const Layout& layout);
  void addOutlines(const Layout& layout);

  std::vector<Stroke> strokes_;
  // What was drawn last, ready to be drawn again; under the mutex of the fonts.
  mutable std::vector<Stroke> drawn_;
  mutable std::optional<double> drawnScale_;
};

}  // namespace tavi::typeset
