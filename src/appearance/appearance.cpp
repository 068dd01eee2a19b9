#include "appearance/appearance.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPalette>

namespace tavi {

namespace {

/// A dark system draws light text on a dark window.
bool isDarkPalette(const QPalette& palette) {
  return palette.color(QPalette::Window).lightnessF() < palette.color(QPalette::WindowText).lightnessF();
}

}  // namespace

Appearance& Appearance::shared() {
  static Appearance appearance;
  return appearance;
}

bool Appearance::isDark() const {
  return forced_.value_or(isSystemDark_);
}

void Appearance::force(std::optional<bool> isDark) {
  forced_ = isDark;
  emit changed();
}

void Appearance::followSystem() {
  qGuiApp->installEventFilter(this);
  update();
}

bool Appearance::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::ApplicationPaletteChange) update();
  return QObject::eventFilter(watched, event);
}

void Appearance::update() {
  isSystemDark_ = isDarkPalette(QGuiApplication::palette());
  emit changed();
}

}  // namespace tavi
