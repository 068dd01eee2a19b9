#include "appearance/radical_item.h"

#include <QPolygonF>

namespace tavi {

RadicalItem::RadicalItem(QQuickItem* parent) : QQuickPaintedItem(parent) {
  setAntialiasing(true);
  connect(this, &RadicalItem::changed, this, [this] { update(); });
}

void RadicalItem::paint(QPainter* painter) {
  const double top = lineWidth_ / 2;
  const double bottom = height() - lineWidth_;
  const QPointF tick(0, bottom - hookHeight_ * 0.85);
  const QPointF shoulder(hookWidth_ * 0.25, bottom - hookHeight_);
  const QPointF foot(hookWidth_ * 0.55, bottom);
  const QPointF corner(hookWidth_, top);

  QPen pen(color_, lineWidth_, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
  painter->setPen(pen);
  painter->drawLine(tick, shoulder);
  painter->drawPolyline(QPolygonF{foot, corner, {width(), top}});
  pen.setWidthF(2 * lineWidth_);
  pen.setJoinStyle(Qt::RoundJoin);
  pen.setCapStyle(Qt::RoundCap);
  painter->setPen(pen);
  painter->drawLine(shoulder, foot);
}

}  // namespace tavi
