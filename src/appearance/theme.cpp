#include "appearance/theme.h"

#include "appearance/appearance.h"
#include "appearance/contrast.h"
#include "appearance/interface_colors.h"
#include "appearance/interface_fonts.h"
#include "platform/motion.h"

namespace tavi {

Theme::Theme(QObject* parent) : QObject(parent) {
  connect(&Appearance::shared(), &Appearance::changed, this, &Theme::appearanceChanged);
  connect(&Motion::shared(), &Motion::changed, this, &Theme::motionChanged);
}

bool Theme::isDark() const {
  return Appearance::shared().isDark();
}

bool Theme::isMotionReduced() const {
  return Motion::shared().isReduced();
}

QColor Theme::label() const {
  return InterfaceColor::label();
}

QColor Theme::secondaryGray() const {
  return InterfaceColor::secondaryGray();
}

QColor Theme::background() const {
  return InterfaceColor::background();
}

QColor Theme::groupedBackground() const {
  return InterfaceColor::groupedBackground();
}

QColor Theme::page() const {
  return InterfaceColor::page();
}

QColor Theme::hairline() const {
  return InterfaceColor::hairline();
}

QColor Theme::focus() const {
  return isDark() ? QColor::fromRgb(0x64b5f6) : QColor::fromRgb(0x1565c0);
}

QColor Theme::red() const {
  return InterfaceColor::red();
}

QColor Theme::accentText() const {
  return isDark() ? QColor::fromRgb(0xff80ab) : QColor::fromRgb(0xc2185b);
}

LayerShadow Theme::edgeShadow() const {
  return {.color = InterfaceColor::label(), .opacity = 0.5, .offset = {}, .radius = 4};
}

QColor Theme::darkTitle() const {
  return InterfaceColor::darkTitle();
}

QColor Theme::legible(const QColor& text, const QColor& ground) const {
  return tavi::legible(text, ground);
}

QFont Theme::book(int size) const {
  return InterfaceFont::book(size);
}

QFont Theme::medium(int size) const {
  return InterfaceFont::medium(size);
}

QFont Theme::heavy(int size) const {
  return InterfaceFont::heavy(size);
}

QFont Theme::icons(int size) const {
  return InterfaceFont::icons(size);
}

}  // namespace tavi
