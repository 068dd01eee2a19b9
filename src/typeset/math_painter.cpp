#include "typeset/math_painter.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <memory>
#include <mutex>
#include <utility>

#include <QtCore/QByteArray>
#include <QtCore/QCoreApplication>
#include <QtGui/QPaintEngine>
#include <QtGui/QPainter>
#include <QtGui/QRawFont>
#include <QtGui/QTransform>

#include "appearance/contrast.h"
#include "typeset/bundled_font.h"

namespace tavi::typeset {
namespace {

constexpr double leastContrast = 4.5;
// So many glyphs make a run: few calls for a line, and little drawn in vain where only a part is seen.
constexpr std::size_t glyphsPerRun = 32;
// No outline of the font reaches farther beyond its origin and advance, in ems.
constexpr double widestGlyph = 1.5;

// The bundled font at the sizes in use. What Qt rasterised stays with it, so it is used under the mutex
// alone, and it goes when the application object does. Qt takes a font away with the thread that read it.
class SharedFont {
 public:
  static SharedFont& instance() {
    static SharedFont shared;
    return shared;
  }

  std::mutex mutex;

  void read() {
    if (base_.isValid()) return;
    base_ = load(QFont::PreferNoHinting);
    hinted_ = load(QFont::PreferVerticalHinting);
    qAddPostRoutine([] { instance().clear(); });
  }

  QRawFont at(double size) {
    read();
    return sized(sizes_, size, base_);
  }

  /// With its horizontal stems on whole pixels and its advances as they are.
  QRawFont hintedAt(double size) {
    read();
    return sized(hintedSizes_, size, hinted_);
  }

  QPainterPath outline(std::uint32_t glyph, double size, const QPointF& place) {
    read();
    const double scale = size / outlineSize;
    const QTransform toPlace(scale, 0, 0, scale, place.x(), place.y());
    return toPlace.map(base_.pathForGlyph(glyph));
  }

 private:
  static constexpr std::size_t mostSizes = 64;
  // Outlines are rounded to a 64th of a pixel; at this size that is nothing.
  static constexpr double outlineSize = 1000;

  using Sizes = std::map<double, QRawFont>;

  static QRawFont sized(Sizes& sizes, double size, const QRawFont& font) {
    if (sizes.size() > mostSizes) sizes.clear();
    const auto [entry, isNew] = sizes.try_emplace(size, font);
    if (isNew) entry->second.setPixelSize(size);
    return entry->second;
  }

  static QRawFont load(QFont::HintingPreference hinting) {
    const auto font = bundledMathFont();
    QRawFont loaded;
    loaded.loadFromData(QByteArray::fromRawData(reinterpret_cast<const char*>(font.data()),
                                                static_cast<qsizetype>(font.size())),
                        outlineSize, hinting);
    return loaded;
  }

  void clear() {
    const std::scoped_lock lock(mutex);
    sizes_.clear();
    hintedSizes_.clear();
    hinted_ = {};
    base_ = {};
  }

  QRawFont base_;
  QRawFont hinted_;
  Sizes sizes_;
  Sizes hintedSizes_;
};

QPainterPath outlineOf(const QGlyphRun& run) {
  QPainterPath outline;
  outline.setFillRule(Qt::WindingFill);
  const QList<quint32> ids = run.glyphIndexes();
  const QList<QPointF> places = run.positions();
  for (qsizetype index = 0; index < ids.size(); ++index) {
    outline.addPath(SharedFont::instance().outline(ids[index], run.rawFont().pixelSize(), places[index]));
  }
  return outline;
}

// Where there is an outline, with the points in the order in which the font has them, so that both add up;
// alone, in the order that Qt draws fastest.
void addRule(QPainterPath& outline, const QRectF& rule) {
  if (!rule.isValid()) return;
  QPainterPath rectangle;
  rectangle.addRect(rule);
  if (outline.isEmpty())
    outline = rectangle;
  else
    outline.addPath(rectangle.toReversed());
}

// One outline of the pieces of an assembly, bottom first. Where two overlap both are the same straight bar,
// so each is cut off in the middle of the overlap: pieces that overlapped would be darker at their edges.
QPainterPath stacked(std::vector<QPainterPath> pieces) {
  QPainterPath outline;
  outline.setFillRule(Qt::WindingFill);
  double bottom = std::numeric_limits<double>::infinity();
  for (std::size_t index = 0; index < pieces.size(); ++index) {
    QPainterPath& piece = pieces[index];
    const double top = index + 1 == pieces.size()
                           ? -std::numeric_limits<double>::infinity()
                           : (piece.boundingRect().top() + pieces[index + 1].boundingRect().bottom()) / 2;
    for (int element = 0; element < piece.elementCount(); ++element) {
      const QPainterPath::Element point = piece.elementAt(element);
      piece.setElementPositionAt(element, point.x, std::clamp(point.y, top, bottom));
    }
    outline.addPath(piece);
    bottom = top;
  }
  return outline;
}

}  // namespace

QColor legibleColor(const QColor& color, const QColor& background) {
  const bool isDark = contrastRatio(background, Qt::white) > contrastRatio(background, Qt::black);
  QColor fitted = color;
  for (int lightness = color.lightness(); contrastRatio(fitted, background) < leastContrast;) {
    lightness = std::clamp(lightness + (isDark ? 2 : -2), 0, 255);
    fitted.setHsl(color.hslHue(), color.hslSaturation(), lightness);
    if (lightness == 0 || lightness == 255) break;
  }
  return fitted.toRgb();
}

void readMathFont() {
  SharedFont& shared = SharedFont::instance();
  const std::scoped_lock lock(shared.mutex);
  shared.read();
}

MathPicture::MathPicture(const Layout& layout) {
  SharedFont& shared = SharedFont::instance();
  const std::scoped_lock lock(shared.mutex);
  addRuns(layout);
  addOutlines(layout);
}

void MathPicture::addRuns(const Layout& layout) {
  std::vector<const Glyph*> run;
  const auto end = [&] {
    if (run.empty()) return;
    Stroke stroke{.left = run.front()->x, .right = run.front()->x, .color = run.front()->color};
    QList<quint32> ids;
    QList<QPointF> places;
    for (const Glyph* glyph : run) {
      ids.push_back(glyph->id);
      places.emplace_back(glyph->x, -glyph->y);
      stroke.left = std::min(stroke.left, glyph->x - widestGlyph * glyph->size);
      stroke.right = std::max(stroke.right, glyph->x + widestGlyph * glyph->size);
    }
    stroke.run.setRawFont(SharedFont::instance().at(run.front()->size));
    stroke.run.setGlyphIndexes(ids);
    stroke.run.setPositions(places);
    strokes_.push_back(std::move(stroke));
    run.clear();
  };
  for (const Glyph& glyph : layout.glyphs) {
    if (glyph.figure != noFigure) continue;
    const bool goesOn = !run.empty() && run.size() < glyphsPerRun && run.front()->size == glyph.size &&
                        run.front()->color == glyph.color;
    if (!goesOn) end();
    run.push_back(&glyph);
  }
  end();
}

void MathPicture::addOutlines(const Layout& layout) {
  const auto add = [&](const QPainterPath& outline, const QRectF& rule, const Color& color) {
    const QRectF bounds = outline.boundingRect().united(rule);
    strokes_.push_back(
        {.left = bounds.left(), .right = bounds.right(), .color = color, .outline = outline, .rule = rule});
  };
  struct Pieces {
    std::vector<QPainterPath> glyphs;
    QRectF rule;
    Color color;
  };
  std::map<Figure, Pieces> figures;
  for (const Glyph& glyph : layout.glyphs) {
    if (glyph.figure == noFigure) continue;
    Pieces& figure = figures[glyph.figure];
    figure.glyphs.push_back(SharedFont::instance().outline(glyph.id, glyph.size, {glyph.x, -glyph.y}));
    figure.color = glyph.color;
  }
  for (const Rule& rule : layout.rules) {
    const QRectF rectangle(rule.x, -rule.y - rule.height, rule.width, rule.height);
    if (rule.figure != noFigure) {
      figures[rule.figure].rule = rectangle;
    } else {
      add({}, rectangle, rule.color);
    }
  }
  for (auto& [number, figure] : figures) {
    const bool isAssembly = figure.glyphs.size() > 1;
    QPainterPath outline = stacked(std::move(figure.glyphs));
    // The sign of a root reaches a little into its bar. The slanted end of a single glyph needs that; an
    // assembly ends upright, and the bar goes on from there.
    if (isAssembly) figure.rule.setLeft(std::max(figure.rule.left(), outline.boundingRect().right()));
    add(outline, figure.rule, figure.color);
  }
}

MathPicture::Stroke MathPicture::joined(const Stroke& stroke) {
  Stroke drawn = stroke;
  addRule(drawn.outline, stroke.rule);
  return drawn;
}

MathPicture::Stroke MathPicture::snapped(const Stroke& stroke, double scale) {
  Stroke drawn = stroke;
  if (stroke.run.isEmpty()) {
    const QTransform toDevice = QTransform::fromScale(scale, scale);
    drawn.outline = toDevice.map(stroke.outline);
    if (!stroke.rule.isValid()) return drawn;
    // A rule begins on a whole pixel and is at least one thick; the sign that it belongs to goes along.
    const QRectF rule = toDevice.mapRect(stroke.rule);
    const double thickness = std::max(1.0, std::round(rule.height()));
    const double top = std::round(rule.center().y() - thickness / 2);
    drawn.outline.translate(0, top - rule.top());
    addRule(drawn.outline, {rule.left(), top, rule.width(), thickness});
    return drawn;
  }
  QList<QPointF> places = stroke.run.positions();
  for (QPointF& place : places) place = {place.x() * scale, std::round(place.y() * scale)};
  drawn.run.setPositions(places);
  drawn.run.setRawFont(SharedFont::instance().hintedAt(stroke.run.rawFont().pixelSize() * scale));
  return drawn;
}

const std::vector<MathPicture::Stroke>& MathPicture::strokesAt(std::optional<double> scale) const {
  if (drawn_.size() == strokes_.size() && scale == drawnScale_) return drawn_;
  drawn_.clear();
  for (const Stroke& stroke : strokes_) drawn_.push_back(scale ? snapped(stroke, *scale) : joined(stroke));
  drawnScale_ = scale;
  return drawn_;
}

void MathPicture::paint(QPainter& painter, const QPointF& origin, const Ink& ink, double left,
                        double right) const {
  const std::scoped_lock lock(SharedFont::instance().mutex);
  std::vector<std::pair<Color, QColor>> colors;
  const auto inkOf = [&](const Color& color) -> const QColor& {
    const auto known = std::ranges::find(colors, color, &std::pair<Color, QColor>::first);
    if (known != colors.end()) return known->second;
    const QColor fitted =
        color ? legibleColor(QColor(color->red, color->green, color->blue), ink.background) : ink.text;
    return colors.emplace_back(color, fitted).second;
  };

  // Pixels take the font's rasterised glyphs; SVG and PDF take outlines, to look alike wherever they are
  // opened.
  const bool isRaster = painter.paintEngine()->type() == QPaintEngine::Raster;
  painter.save();
  painter.translate(origin);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  const QTransform device = painter.deviceTransform();
  std::optional<double> scale;
  if (isRaster && device.type() <= QTransform::TxScale && device.m11() > 0 &&
      qFuzzyCompare(device.m11(), device.m22())) {
    scale = device.m11();
    painter.setWorldTransform(QTransform::fromTranslate(device.dx(), std::round(device.dy())) *
                              device.inverted() * painter.worldTransform());
  }
  for (const Stroke& stroke : strokesAt(scale)) {
    if (stroke.right < left || stroke.left > right) continue;
    if (stroke.run.isEmpty()) {
      painter.fillPath(stroke.outline, inkOf(stroke.color));
    } else if (isRaster) {
      painter.setPen(inkOf(stroke.color));
      painter.drawGlyphRun({}, stroke.run);
    } else {
      painter.fillPath(outlineOf(stroke.run), inkOf(stroke.color));
    }
  }
  painter.restore();
}

}  // namespace tavi::typeset
