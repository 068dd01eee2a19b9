#include "appearance/picture_item.h"

#include "appearance/appearance.h"
#include "appearance/picture.h"

namespace tavi {

PictureItem::PictureItem(QQuickItem* parent) : QQuickPaintedItem(parent) {
  setAntialiasing(true);
  connect(&Appearance::shared(), &Appearance::changed, this, [this] { update(); });
}

void PictureItem::setName(const QString& name) {
  if (name_ == name) return;
  name_ = name;
  naturalSize_ = pictureSize(name);
  update();
  emit nameChanged();
}

void PictureItem::paint(QPainter* painter) {
  paintPicture(*painter, name_, boundingRect());
}

}  // namespace tavi
