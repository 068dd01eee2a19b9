#include "shell/frame/toolbar.h"

#include <QCoreApplication>
#include <QTimer>
#include <utility>

namespace tavi {

void ToolbarButton::setOn(bool isOn) {
  if (std::exchange(isOn_, isOn) != isOn) emit isOnChanged();
}

void Toolbar::setTitle(const QString& title) {
  if (title_ == title) return;
  title_ = title;
  emit changed();
}

void Toolbar::setStyle(const Style& style) {
  style_ = style;
  emit changed();
}

void Toolbar::setLeftViews(Buttons buttons) {
  retire(std::exchange(leftViews_, std::move(buttons)));
  emit buttonsChanged();
}

void Toolbar::setRightViews(Buttons buttons) {
  retire(std::exchange(rightViews_, std::move(buttons)));
  emit buttonsChanged();
}

QList<ToolbarButton*> Toolbar::plain(const Buttons& buttons) {
  QList<ToolbarButton*> list;
  for (const auto& button : buttons) list.append(button.get());
  return list;
}

/// A button may be replaced by its own tap.
void Toolbar::retire(Buttons buttons) {
  QTimer::singleShot(0, QCoreApplication::instance(), [kept = std::move(buttons)] {});
}

}  // namespace tavi
