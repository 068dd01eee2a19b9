#include "shell/frame/tab_item.h"

#include "appearance/interface_colors.h"

namespace tavi {

void TabItem::setTitle(const QString& title) {
  title_ = title;
  emit changed();
}

void TabItem::setFont(const QFont& font) {
  font_ = font;
  emit changed();
}

void TabItem::setEnabled(bool isEnabled) {
  isEnabled_ = isEnabled;
  titleColor_ = isEnabled ? InterfaceColor::darkTitle() : InterfaceColor::secondaryGray();
  emit changed();
}

}  // namespace tavi
