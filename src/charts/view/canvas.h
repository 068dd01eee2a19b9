#pragma once

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <span>
#include <string_view>

#include "typeset/layout.h"

namespace tavi {

// What all charts draw with. Lengths are device-independent pixels.

QString textOf(std::string_view utf8);

QColor withOpacity(QColor color, double opacity);

double textWidth(const QString& text, const QFont& font);
/// The text with an ellipsis in place of what has no room in that width.
QString shortened(const QString& text, const QFont& font, double width);
double textHeight(const QFont& font);

/// One line of text with its upper left corner there. On any device it looks the same wherever it is opened.
void drawText(QPainter& painter, const QString& text, const QFont& font, const QColor& color, QPointF place);

/// A line of LaTeX, set in that em.
typeset::Layout setFormula(std::string_view latex, double size);

/// An upright or level line that fills whole device pixels, at least one.
void drawCrispLine(QPainter& painter, QPointF from, QPointF to, double width, const QColor& color);

/// A line through the points, round where it turns.
void drawJoined(QPainter& painter, std::span<const QPointF> points, const QColor& color, double width);

/// Discs, on the pixels nearest to the points where a device has pixels.
void drawDots(QPainter& painter, std::span<const QPointF> points, const QColor& color, double radius);

/// The card under a chart or a tooltip, with the soft shadow of floating elements.
void drawCard(QPainter& painter, const QRectF& card, double radius, const QColor& background,
              const QColor& shadow, bool isDark);

}  // namespace tavi
