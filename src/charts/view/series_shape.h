#pragma once

#include <QList>
#include <QPainterPath>
#include <QPointF>
#include <QPolygonF>
#include <QRectF>
#include <span>
#include <vector>

namespace tavi {

// From the places of a series' points to what is drawn of them.

/// The points without those that no column of pixels can show: of points that follow one another in a column
/// the first, the highest, the lowest and the last stay. `columns` are those of a unit of length.
std::vector<QPointF> thinned(std::span<const QPointF> points, double columns);

/// Only the first of the points that fall into one pixel. `pixels` are those of a unit of length.
std::vector<QPointF> distinct(std::span<const QPointF> points, double pixels);

/// With a corner before each point, so that its height holds up to it.
std::vector<QPointF> stepped(std::span<const QPointF> points);

/// A curve through the points that turns smoothly at each; straight where x does not rise.
QPainterPath curve(std::span<const QPointF> points);

/// Points on a curve, so close that a polyline through them looks like it. `pixels` are those of a unit of
/// length.
std::vector<QPointF> flattened(const QPainterPath& curve, double pixels);

/// The parts of the polyline that lie within the frame, however far it reaches beyond.
QList<QPolygonF> clipped(std::span<const QPointF> points, const QRectF& frame);

}  // namespace tavi
