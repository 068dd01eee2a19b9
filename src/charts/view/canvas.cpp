#include "charts/view/canvas.h"

#include <QFontMetricsF>
#include <QImage>
#include <QLineF>
#include <QPaintEngine>
#include <QPainterPath>
#include <cmath>

#include "appearance/text_drawing.h"
#include "typeset/bundled_font.h"
#include "typeset/typeset.h"

namespace tavi {

QString textOf(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

QColor withOpacity(QColor color, double opacity) {
  color.setAlphaF(static_cast<float>(opacity));
  return color;
}

double textWidth(const QString& text, const QFont& font) {
  return QFontMetricsF(font).horizontalAdvance(text);
}

QString shortened(const QString& text, const QFont& font, double width) {
  return QFontMetricsF(font).elidedText(text, Qt::ElideRight, std::max(0.0, width));
}

double textHeight(const QFont& font) {
  return QFontMetricsF(font).height();
}

void drawText(QPainter& painter, const QString& text, const QFont& font, const QColor& color, QPointF place) {
  constexpr double unbroken = 1e6;
  painter.setPen(color);
  TextBlock(text, font, unbroken).draw(painter, place);
}

typeset::Layout setFormula(std::string_view latex, double size) {
  // Pictures that are shared are painted beside the main thread.
  thread_local typeset::MathFont font = typeset::MathFont::open(typeset::bundledMathFont()).value();
  return typeset::typeset(latex, font, size);
}

void drawCrispLine(QPainter& painter, QPointF from, QPointF to, double width, const QColor& color) {
  const QRectF line(from, to);
  const bool isLevel = line.height() == 0;
  const double half = width / 2;
  QRectF exact = (isLevel ? line.adjusted(0, -half, 0, half) : line.adjusted(-half, 0, half, 0)).normalized();
  if (painter.paintEngine()->type() == QPaintEngine::Raster) {
    const QTransform toDevice = painter.deviceTransform();
    const QRectF device = toDevice.mapRect(exact);
    const double thickness = std::max(1.0, std::round(isLevel ? device.height() : device.width()));
    const QPointF corner(std::round(isLevel ? device.left() : device.center().x() - thickness / 2),
                         std::round(isLevel ? device.center().y() - thickness / 2 : device.top()));
    const QPointF end(isLevel ? std::round(device.right()) : corner.x() + thickness,
                      isLevel ? corner.y() + thickness : std::round(device.bottom()));
    // Smoothed drawing cuts places off behind 16 binary digits, so that one a hair below a whole pixel would
    // blur. To switch the smoothing off has Qt set the clip anew, which takes longer than the rest.
    constexpr double hair = 1e-6;
    exact = toDevice.inverted().mapRect(QRectF(corner, end).translated(hair, hair));
  }
  painter.fillRect(exact, color);
}

void drawJoined(QPainter& painter, std::span<const QPointF> points, const QColor& color, double width) {
  // One stroke of many points takes far longer than its parts, whose corners nobody sees where they are
  // dense.
  constexpr std::size_t mostInOneStroke = 64;
  const auto count = static_cast<int>(points.size());
  QPen pen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
  if (points.size() <= mostInOneStroke) {
    painter.setPen(pen);
    painter.drawPolyline(points.data(), count);
    return;
  }
  QList<QLineF> lines;
  for (std::size_t index = 0; index + 1 < points.size(); ++index)
    lines.emplace_back(points[index], points[index + 1]);
  pen.setCapStyle(Qt::SquareCap);
  painter.setPen(pen);
  painter.drawLines(lines);
}

void drawDots(QPainter& painter, std::span<const QPointF> points, const QColor& color, double radius) {
  if (painter.paintEngine()->type() != QPaintEngine::Raster) {
    painter.setPen(QPen(color, 2 * radius, Qt::SolidLine, Qt::RoundCap));
    painter.drawPoints(points.data(), static_cast<int>(points.size()));
    return;
  }
  // One disc drawn once and copied.
  const QTransform toDevice = painter.deviceTransform();
  const double deviceRadius = radius * toDevice.m11();
  const int side = 2 * static_cast<int>(std::ceil(deviceRadius)) + 1;
  QImage disc(side, side, QImage::Format_ARGB32_Premultiplied);
  disc.fill(Qt::transparent);
  QPainter discPainter(&disc);
  discPainter.setRenderHint(QPainter::Antialiasing);
  discPainter.setPen(Qt::NoPen);
  discPainter.setBrush(color);
  discPainter.drawEllipse(QPointF(side, side) / 2, deviceRadius, deviceRadius);
  discPainter.end();
  painter.save();
  painter.setWorldTransform(toDevice.inverted() * painter.worldTransform());
  for (const QPointF& point : points) {
    const QPointF place = toDevice.map(point);
    const QPoint pixel(static_cast<int>(std::floor(place.x())), static_cast<int>(std::floor(place.y())));
    painter.drawImage(pixel - QPoint(side / 2, side / 2), disc);
  }
  painter.restore();
}

void drawCard(QPainter& painter, const QRectF& card, double radius, const QColor& background,
              const QColor& shadow, bool isDark) {
  // Rings one over the other, weaker outwards, come close to a blurred shadow on any device.
  constexpr double opacity = 0.5;
  constexpr int rings = 6;
  const double blur = isDark ? 1 : 2;
  const QRectF ground = isDark ? card : card.translated(0, 1.5);
  QPainterPath inside;
  inside.addRoundedRect(card, radius, radius);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  for (int ring = 0; ring < rings; ++ring) {
    const double grown = 2 * blur * (1 - static_cast<double>(ring) / rings);
    QPainterPath layer;
    layer.addRoundedRect(ground.adjusted(-grown, -grown, grown, grown), radius + grown, radius + grown);
    painter.fillPath(layer, withOpacity(shadow, opacity / rings / 2));
  }
  painter.fillPath(inside, background);
  painter.restore();
}

}  // namespace tavi
