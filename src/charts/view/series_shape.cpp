#include "charts/view/series_shape.h"

#include <QTransform>
#include <algorithm>
#include <array>
#include <cmath>
#include <span>
#include <unordered_set>
#include <utility>

namespace tavi {

namespace {

double slope(QPointF from, QPointF to) {
  return (to.y() - from.y()) / (to.x() - from.x());
}

// Of the parabola through the point and its neighbours, at the point.
double tangent(QPointF before, QPointF at, QPointF after) {
  const double left = at.x() - before.x();
  const double right = after.x() - at.x();
  return (slope(before, at) * right + slope(at, after) * left) / (left + right);
}

}  // namespace

std::vector<QPointF> thinned(std::span<const QPointF> points, double columns) {
  std::vector<QPointF> kept;
  for (std::size_t first = 0; first < points.size();) {
    const double column = std::floor(points[first].x() * columns);
    std::size_t lowest = first;
    std::size_t highest = first;
    std::size_t end = first + 1;
    for (; end < points.size() && std::floor(points[end].x() * columns) == column; ++end) {
      if (points[end].y() > points[lowest].y()) lowest = end;
      if (points[end].y() < points[highest].y()) highest = end;
    }
    std::array<std::size_t, 4> chosen{first, lowest, highest, end - 1};
    std::ranges::sort(chosen);
    const std::span distinct(chosen.begin(), std::unique(chosen.begin(), chosen.end()));
    for (const std::size_t index : distinct) kept.push_back(points[index]);
    first = end;
  }
  return kept;
}

std::vector<QPointF> distinct(std::span<const QPointF> points, double pixels) {
  struct Hash {
    std::size_t operator()(const std::pair<double, double>& pixel) const {
      return std::hash<double>()(pixel.first * 8191 + pixel.second);
    }
  };
  std::unordered_set<std::pair<double, double>, Hash> seen;
  std::vector<QPointF> kept;
  for (const QPointF& point : points) {
    if (seen.emplace(std::floor(point.x() * pixels), std::floor(point.y() * pixels)).second)
      kept.push_back(point);
  }
  return kept;
}

std::vector<QPointF> stepped(std::span<const QPointF> points) {
  std::vector<QPointF> corners;
  for (const QPointF& point : points) {
    if (!corners.empty()) corners.emplace_back(point.x(), corners.back().y());
    corners.push_back(point);
  }
  return corners;
}

QPainterPath curve(std::span<const QPointF> points) {
  QPainterPath path;
  if (points.empty()) return path;
  path.moveTo(points.front());
  const auto rises = [&](std::size_t index) { return points[index].x() < points[index + 1].x(); };
  const std::size_t last = points.size() - 1;
  // Where a curve begins or ends its first or last parabola goes on.
  const auto tangentAt = [&](std::size_t index, bool isLeftEnd) {
    const bool hasBefore = index > 0 && rises(index - 1);
    const bool hasAfter = index < last && rises(index);
    if (hasBefore && hasAfter) return tangent(points[index - 1], points[index], points[index + 1]);
    const std::size_t other = isLeftEnd ? index + 1 : index - 1;
    const double chord = slope(points[index], points[other]);
    const bool goesOn = isLeftEnd ? other < last && rises(other) : other > 0 && rises(other - 1);
    if (!goesOn) return chord;
    return 2 * chord - tangent(points[other - 1], points[other], points[other + 1]);
  };
  for (std::size_t index = 0; index < last; ++index) {
    const QPointF from = points[index];
    const QPointF to = points[index + 1];
    if (!rises(index)) {
      path.lineTo(to);
      continue;
    }
    const double third = (to.x() - from.x()) / 3;
    path.cubicTo(from + QPointF(third, third * tangentAt(index, true)),
                 to - QPointF(third, third * tangentAt(index + 1, false)), to);
  }
  return path;
}

std::vector<QPointF> flattened(const QPainterPath& curve, double pixels) {
  const QTransform toPixels = QTransform::fromScale(pixels, pixels);
  std::vector<QPointF> points;
  for (const QPolygonF& part : curve.toSubpathPolygons(toPixels))
    for (const QPointF& point : part) points.push_back(point / pixels);
  return points;
}

QList<QPolygonF> clipped(std::span<const QPointF> points, const QRectF& frame) {
  QList<QPolygonF> parts;
  for (std::size_t index = 0; index + 1 < points.size(); ++index) {
    const QPointF from = points[index];
    const QPointF way = points[index + 1] - from;
    double start = 0;
    double end = 1;
    // Cuts off what lies on the far side of an edge, `beyond` it at the start and moving on by `speed`.
    const auto cut = [&](double beyond, double speed) {
      if (speed > 0)
        end = std::min(end, -beyond / speed);
      else if (speed < 0)
        start = std::max(start, -beyond / speed);
      else if (beyond > 0)
        end = -1;
    };
    cut(frame.left() - from.x(), -way.x());
    cut(from.x() - frame.right(), way.x());
    cut(frame.top() - from.y(), -way.y());
    cut(from.y() - frame.bottom(), way.y());
    if (start > end) continue;
    const QPointF first = from + start * way;
    if (start > 0 || parts.isEmpty() || parts.back().back() != first) parts.push_back({first});
    parts.back().push_back(end < 1 ? from + end * way : points[index + 1]);
  }
  return parts;
}

}  // namespace tavi
