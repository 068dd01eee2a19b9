#include "appearance/theme.h"

#include "appearance/appearance.h"
#include "appearance/contrast.h"
#include "appearance/formula_scale.h"
#include "appearance/interface_colors.h"
#include "appearance/interface_fonts.h"
#include "platform/motion.h"

namespace tavi {

Theme::Theme(QObject* parent) : QObject(parent) {
  connect(&Appearance::shared(), &Appearance::changed, this, &Theme::appearanceChanged);
  connect(&FormulaScale::shared(), &FormulaScale::changed, this, &Theme::formulaPercentChanged);
  connect(&Motion::shared(), &Motion::changed, this, &Theme::motionChanged);
}

bool Theme::isDark() {
  return Appearance::shared().isDark();
}

bool Theme::isMotionReduced() {
  return Motion::shared().isReduced();
}

int Theme::formulaPercent() {
  return FormulaScale::shared().percent();
}

QColor Theme::label() {
  return InterfaceColor::label();
}

QColor Theme::secondaryGray() {
  return InterfaceColor::secondaryGray();
}

QColor Theme::background() {
  return InterfaceColor::background();
}

QColor Theme::groupedBackground() {
  return InterfaceColor::groupedBackground();
}

QColor Theme::page() {
  return InterfaceColor::page();
}

QColor Theme::hairline() {
  return InterfaceColor::hairline();
}

QColor Theme::focus() {
  return isDark() ? QColor::fromRgb(0x64b5f6) : QColor::fromRgb(0x1565c0);
}

QColor Theme::red() {
  return InterfaceColor::red();
}

QColor Theme::accentText() {
  return isDark() ? QColor::fromRgb(0xff80ab) : QColor::fromRgb(0xc2185b);
}

LayerShadow Theme::edgeShadow() {
  return {.color = InterfaceColor::label(), .opacity = 0.5, .offset = {}, .radius = 4};
}

QColor Theme::darkTitle() {
  return InterfaceColor::darkTitle();
}

QColor Theme::legible(const QColor& text, const QColor& ground) {
  return tavi::legible(text, ground);
}

QFont Theme::book(int size) {
  return InterfaceFont::book(size);
}

QFont Theme::medium(int size) {
  return InterfaceFont::medium(size);
}

QFont Theme::heavy(int size) {
  return InterfaceFont::heavy(size);
}

QFont Theme::icons(int size) {
  return InterfaceFont::icons(size);
}

}  // namespace tavi
