#include "charts/view/coordinate_picture.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <limits>

#include "appearance/contrast.h"
#include "appearance/interface_fonts.h"
#include "charts/view/canvas.h"
#include "charts/view/series_shape.h"
#include "typeset/math_painter.h"

namespace tavi {

namespace {

constexpr double lineWidth = 2;
constexpr double singleRadius = 3;  // of a point that is joined to none
constexpr double ringWidth = 1.5;   // around a marked point
constexpr double areaOpacity = 0.25;
constexpr double gridOpacity = 0.5;  // of a line thinner than a pixel
constexpr double leastMinorDistance = 5;
constexpr double minorMarkLength = 3;
constexpr double leastPointDistance = 3;  // where a curve is rounder than the straight line
constexpr int tooltipSize = 12;
constexpr double tooltipPadding = 8;
constexpr double tooltipDistance = 10;

double distanceOf(QPointF one, QPointF other) {
  return std::hypot(one.x() - other.x(), one.y() - other.y());
}

double scaleOf(const QPainter& painter) {
  return std::abs(painter.deviceTransform().m11());
}

}  // namespace

CoordinatePicture::CoordinatePicture(const ChartOptions& options, QSizeF size, const ChartPalette& palette)
    : options_(options), size_(size), palette_(palette), layout_(options, size) {}

void CoordinatePicture::paint(QPainter& painter, const std::optional<ChartMark>& mark) const {
  painter.save();
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  paintGrid(painter);
  paintMinorMarks(painter);
  const auto isMarked = [](const ChartSeries& series) { return series.markerRadius.value_or(0) > 0; };
  painter.save();
  painter.setClipRect(layout_.plot.adjusted(-lineWidth, -lineWidth, lineWidth, lineWidth));
  for (const ChartSeries& series : options_.series)
    if (!isMarked(series)) paintJoined(painter, series);
  painter.restore();
  for (const ChartSeries& series : options_.series)
    if (isMarked(series)) paintDots(painter, series);
  paintTexts(painter);
  paintLegend(painter);
  if (const auto place = mark ? placeIfDrawn(*mark) : std::nullopt) {
    paintCrosshair(painter, *place);
    paintTooltip(painter, *mark, *place);
  }
  painter.restore();
}

void CoordinatePicture::paintGrid(QPainter& painter) const {
  const QRectF& plot = layout_.plot;
  const QColor grid =
      withOpacity(palette_.color(ChartAxis::color), palette_.isDark ? gridOpacity / 2 : gridOpacity);
  const auto level = [&](double y, double width, const QColor& color) {
    drawCrispLine(painter, {plot.left(), y}, {plot.right(), y}, width, color);
  };
  const auto upright = [&](double x, double width, const QColor& color) {
    drawCrispLine(painter, {x, plot.top()}, {x, plot.bottom()}, width, color);
  };
  for (const double value : layout_.y.gridValues)
    level(layout_.placeY(value), ChartAxis::gridLineWidth, grid);
  for (const double value : layout_.x.gridValues)
    upright(layout_.placeX(value), ChartAxis::gridLineWidth, grid);
  // Each axis stands where the other one is zero, or as near to that as the plot reaches.
  const auto origin = [](const ValueRange& range) { return std::clamp(0.0, range.low, range.high); };
  level(layout_.placeY(origin(layout_.y.range)), ChartAxis::lineWidth, palette_.color(ChartAxis::color));
  upright(layout_.placeX(origin(layout_.x.range)), ChartAxis::lineWidth, palette_.color(ChartAxis::color));
}

// Short marks on both axes between the grid lines.
void CoordinatePicture::paintMinorMarks(QPainter& painter) const {
  const QRectF& plot = layout_.plot;
  const QColor color = palette_.color(ChartAxis::color);
  const auto marks = [](const AxisScale& scale, double length, const auto& mark) {
    const double count = (scale.range.high - scale.range.low) / scale.minorInterval;
    if (scale.gridValues.empty() || !(count * leastMinorDistance <= length)) return;
    const double first = scale.gridValues.front();
    const double begin = std::ceil((scale.range.low - first) / scale.minorInterval - 0.001);
    const double end = std::floor((scale.range.high - first) / scale.minorInterval + 0.001);
    for (int index = 0; begin + index <= end; ++index) mark(first + (begin + index) * scale.minorInterval);
  };
  const double axisY = layout_.placeY(std::clamp(0.0, layout_.y.range.low, layout_.y.range.high));
  const double axisX = layout_.placeX(std::clamp(0.0, layout_.x.range.low, layout_.x.range.high));
  marks(layout_.x, plot.width(), [&](double value) {
    const double x = layout_.placeX(value);
    drawCrispLine(painter, {x, axisY}, {x, axisY + minorMarkLength}, ChartAxis::lineWidth, color);
  });
  marks(layout_.y, plot.height(), [&](double value) {
    const double y = layout_.placeY(value);
    drawCrispLine(painter, {axisX - minorMarkLength, y}, {axisX, y}, ChartAxis::lineWidth, color);
  });
}

void CoordinatePicture::paintTexts(QPainter& painter) const {
  const QColor titleColor = palette_.textColor(ChartOptions::titleColor);
  const QColor axisColor = palette_.textColor(ChartAxis::color);
  const auto draw = [&](const PlacedText& text, const QColor& color) {
    drawText(painter, text.text, text.font, color, text.place);
  };
  draw(layout_.title, titleColor);
  draw(layout_.xTitle, axisColor);
  draw(layout_.yTitle, axisColor);
  const typeset::Ink ink{.text = axisColor, .background = palette_.background};
  for (const auto* texts : {&layout_.xTexts, &layout_.yTexts}) {
    for (const AxisText& text : *texts) {
      if (text.text.isEmpty())
        typeset::MathPicture(text.formula).paint(painter, text.box.topLeft() + QPointF(0, text.ascent), ink);
      else
        draw({text.text, layout_.xTitle.font, text.box.topLeft()}, axisColor);
    }
  }
}

void CoordinatePicture::paintLegend(QPainter& painter) const {
  const QColor nameColor = legible(QColor(textOf(options_.legend.itemColor)), palette_.background);
  for (const LegendEntry& entry : layout_.legend) {
    const PlacedText& name = entry.name;
    const ChartSeries& series = options_.series[entry.series];
    const QColor color = palette_.described(series.color);
    const double middle = name.place.y() + textHeight(name.font) / 2;
    const double left = name.place.x() - legendSymbolRoom;
    const bool isMarked = series.markerRadius.value_or(0) > 0;
    if (isMarked || options_.type == ChartType::area) {
      const double half = isMarked ? 4 : 6;
      const QRectF symbol(left + legendSymbolWidth / 2 - half, middle - half, 2 * half, 2 * half);
      QPainterPath shape;
      shape.addRoundedRect(symbol, isMarked ? half : 2, isMarked ? half : 2);
      painter.fillPath(shape, color);
    } else {
      painter.setPen(QPen(color, lineWidth, Qt::SolidLine, Qt::RoundCap));
      painter.drawLine(QPointF(left, middle), QPointF(left + legendSymbolWidth, middle));
    }
    drawText(painter, name.text, name.font, nameColor, name.place);
  }
}

std::vector<std::vector<QPointF>> CoordinatePicture::runs(const ChartSeries& series) const {
  std::vector<std::vector<QPointF>> runs;
  bool isGap = true;
  for (const ChartPoint& point : series.points) {
    const auto place = layout_.place(point);
    if (place && isGap) runs.emplace_back();
    if (place) runs.back().push_back(*place);
    isGap = !place;
  }
  return runs;
}

void CoordinatePicture::paintJoined(QPainter& painter, const ChartSeries& series) const {
  const QColor color = palette_.described(series.color);
  const QRectF frame = layout_.plot.adjusted(-2 * lineWidth, -2 * lineWidth, 2 * lineWidth, 2 * lineWidth);
  const double ground = layout_.placeY(std::clamp(0.0, layout_.y.range.low, layout_.y.range.high));
  for (const std::vector<QPointF>& run : runs(series)) {
    std::vector<QPointF> points = thinned(run, scaleOf(painter));
    if (series.isStepped) points = stepped(points);
    if (options_.type == ChartType::area) {
      QPolygonF area(QList<QPointF>(points.begin(), points.end()));
      area << QPointF(points.back().x(), ground) << QPointF(points.front().x(), ground);
      painter.setPen(Qt::NoPen);
      painter.setBrush(withOpacity(color, areaOpacity));
      painter.drawPolygon(area);
      painter.setBrush(Qt::NoBrush);
    }
    const double width = std::abs(points.back().x() - points.front().x());
    const bool isRound =
        options_.type == ChartType::spline && static_cast<double>(points.size()) * leastPointDistance < width;
    if (isRound) points = flattened(curve(points), scaleOf(painter));
    for (const QPolygonF& part : clipped(points, frame)) drawJoined(painter, part, color, lineWidth);
    if (points.size() == 1 && layout_.isInPlot(points.front()))
      drawDots(painter, points, color, singleRadius);
  }
}

void CoordinatePicture::paintDots(QPainter& painter, const ChartSeries& series) const {
  std::vector<QPointF> points;
  for (const ChartPoint& point : series.points) {
    const auto place = layout_.place(point);
    if (place && layout_.isInPlot(*place)) points.push_back(*place);
  }
  const double radius = *series.markerRadius;
  points = distinct(points, scaleOf(painter));
  if (radius > lineWidth) drawDots(painter, points, palette_.background, radius + ringWidth);
  drawDots(painter, points, palette_.described(series.color), radius);
}

void CoordinatePicture::paintCrosshair(QPainter& painter, QPointF place) const {
  const QRectF& plot = layout_.plot;
  QPen pen(palette_.color(options_.crosshair.color), options_.crosshair.width, Qt::CustomDashLine,
           Qt::FlatCap);
  pen.setDashPattern({8, 3, 1, 3, 1, 3});  // a long dash and two dots
  painter.setPen(pen);
  painter.drawLine(QPointF(place.x(), plot.bottom()), QPointF(place.x(), plot.top()));
  painter.drawLine(QPointF(plot.left(), place.y()), QPointF(plot.right(), place.y()));
}

void CoordinatePicture::paintTooltip(QPainter& painter, const ChartMark& mark, QPointF place) const {
  const ChartSeries& series = options_.series[mark.series];
  const double radius = std::max(4.0, series.markerRadius.value_or(0));
  for (const auto& [size, color] : {std::pair{radius + ringWidth, palette_.background},
                                    std::pair{radius, palette_.described(series.color)}}) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawEllipse(place, size, size);
  }
  const QFont font = InterfaceFont::book(tooltipSize);
  const QStringList lines = tooltipLines(options_, series.points[mark.point]);
  QRectF card;
  for (const QString& line : lines) {
    card.setWidth(std::max(card.width(), textWidth(line, font)));
    card.setHeight(card.height() + textHeight(font));
  }
  card.adjust(0, 0, 2 * tooltipPadding, 2 * tooltipPadding);
  // Up and to the right of the point, else to where there is room for it.
  card.moveBottomLeft(place + QPointF(tooltipDistance, -tooltipDistance));
  if (card.right() > size_.width() - tooltipPadding) card.moveRight(place.x() - tooltipDistance);
  if (card.top() < tooltipPadding) card.moveTop(place.y() + tooltipDistance);
  card.moveLeft(std::max(tooltipPadding, card.left()));
  drawCard(painter, card, 6, palette_.background, palette_.label, palette_.isDark);
  if (palette_.isDark) {
    painter.setPen(QPen(palette_.label, 0.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(card, 6, 6);
  }
  QPointF corner = card.topLeft() + QPointF(tooltipPadding, tooltipPadding);
  for (const QString& line : lines) {
    drawText(painter, line, font, palette_.label, corner);
    corner.ry() += textHeight(font);
  }
}

std::optional<QPointF> CoordinatePicture::placeIfDrawn(const ChartMark& mark) const {
  if (mark.series >= options_.series.size() || mark.point >= options_.series[mark.series].points.size())
    return std::nullopt;
  const auto place = layout_.place(options_.series[mark.series].points[mark.point]);
  return place && layout_.isInPlot(*place) ? place : std::nullopt;
}

std::optional<ChartMark> CoordinatePicture::nearest(QPointF place) const {
  std::optional<ChartMark> nearest;
  double least = std::numeric_limits<double>::infinity();
  for (std::size_t series = 0; series < options_.series.size(); ++series) {
    const auto candidate = nearestOf(series, place);
    const double distance = candidate ? distanceOf(*placeIfDrawn(*candidate), place) : least;
    if (distance < least) nearest = candidate;
    least = std::min(least, distance);
  }
  return nearest;
}

std::optional<ChartMark> CoordinatePicture::nearestOf(std::size_t series, QPointF place) const {
  std::optional<ChartMark> nearest;
  double least = std::numeric_limits<double>::infinity();
  for (ChartMark mark{series, 0}; mark.point < options_.series[series].points.size(); ++mark.point) {
    const auto point = placeIfDrawn(mark);
    const double distance = point ? distanceOf(*point, place) : least;
    if (distance < least) nearest = mark;
    least = std::min(least, distance);
  }
  return nearest;
}

std::optional<ChartMark> CoordinatePicture::first() const {
  for (ChartMark mark; mark.series < options_.series.size(); ++mark.series) {
    for (mark.point = 0; mark.point < options_.series[mark.series].points.size(); ++mark.point)
      if (placeIfDrawn(mark)) return mark;
  }
  return std::nullopt;
}

// Beyond either end a number wraps to one that no point and no series has.
ChartMark CoordinatePicture::nextPoint(ChartMark mark, int way) const {
  const std::size_t count = options_.series[mark.series].points.size();
  for (ChartMark next = mark; (next.point += static_cast<std::size_t>(way)) < count;)
    if (placeIfDrawn(next)) return next;
  return mark;
}

ChartMark CoordinatePicture::nextSeries(ChartMark mark, int way) const {
  const auto from = placeIfDrawn(mark);
  for (std::size_t series = mark.series;
       from && (series += static_cast<std::size_t>(way)) < options_.series.size();)
    if (const auto next = nearestOf(series, *from)) return *next;
  return mark;
}

QStringList tooltipLines(const ChartOptions& options, const ChartPoint& point) {
  QString text = textOf(options.tooltip.header + options.tooltip.point);
  text.replace(QStringLiteral("{point.key}"), textOf(shortNumber(point[0])));
  text.replace(QStringLiteral("{point.y}"), textOf(shortNumber(point[1])));
  return text.split(QStringLiteral("<br/>"), Qt::SkipEmptyParts);
}

}  // namespace tavi
