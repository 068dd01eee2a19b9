#include "appearance/view.h"

#include "appearance/appearance.h"
#include "appearance/interface_colors.h"

namespace tavi {

View::View(QObject* item) : QObject(item) {
  connect(&Appearance::shared(), &Appearance::changed, this, &View::styleChanged);
}

QColor View::orLabel(const QColor& color) {
  return color.isValid() ? color : InterfaceColor::label();
}

View* View::qmlAttachedProperties(QObject* item) {
  return std::make_unique<View>(item).release();  // the item owns it from here on
}

View* View::of(const QQuickItem* item) {
  return qobject_cast<View*>(qmlAttachedPropertiesObject<View>(item, false));
}

std::vector<QQuickItem*> View::subviews(const QQuickItem& item) {
  std::vector<QQuickItem*> views;
  for (QQuickItem* child : item.childItems()) {
    if (of(child)) {
      views.push_back(child);
    } else {
      const auto deeper = subviews(*child);
      views.insert(views.end(), deeper.begin(), deeper.end());
    }
  }
  return views;
}

void View::setKind(Kind kind) {
  if (kind_ == kind) return;
  kind_ = kind;
  emit kindChanged();
}

bool View::isButton() const {
  return kind_ == Kind::Button || kind_ == Kind::FlatButton || kind_ == Kind::FloatingButton ||
         kind_ == Kind::IconButton;
}

void View::setTag(int tag) {
  if (tag_ == tag) return;
  tag_ = tag;
  emit tagChanged();
}

template <typename Value>
void View::assign(Value& member, const Value& value) {
  if (member == value) return;
  member = value;
  emit styleChanged();
}

void View::setBackgroundColor(const QColor& color) {
  assign(backgroundColor_, color);
}

void View::setTitleColor(const QColor& color) {
  assign(titleColor_, color);
}

void View::setTintColor(const QColor& color) {
  assign(tintColor_, color);
}

void View::setImageTintColor(const QColor& color) {
  assign(imageTintColor_, color);
}

void View::setFilledColor(const QColor& color) {
  assign(filledColor_, color);
}

void View::setAlpha(double alpha) {
  assign(alpha_, alpha);
}

void View::setShadow(const LayerShadow& shadow) {
  assign(shadow_, shadow);
}

}  // namespace tavi
