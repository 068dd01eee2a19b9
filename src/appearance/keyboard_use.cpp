#include "appearance/keyboard_use.h"

#include <QEvent>
#include <QGuiApplication>
#include <utility>

namespace tavi {

KeyboardUse::KeyboardUse(QObject* parent) : QObject(parent) {
  qGuiApp->installEventFilter(this);
}

bool KeyboardUse::eventFilter(QObject* watched, QEvent* event) {
  const bool isKey = event->type() == QEvent::KeyPress;
  const bool isPointer = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::TouchBegin;
  if ((isKey || isPointer) && std::exchange(isCurrent_, isKey) != isKey) emit changed();
  return QObject::eventFilter(watched, event);
}

}  // namespace tavi
