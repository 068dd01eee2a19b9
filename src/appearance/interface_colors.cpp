#include "appearance/interface_colors.h"

#include <algorithm>

#include "appearance/appearance.h"

namespace tavi {

namespace {

QColor either(QRgb light, QRgb dark) {
  return QColor::fromRgba(Appearance::shared().isDark() ? dark : light);
}

}  // namespace

QColor InterfaceColor::groupedBackground() {
  return either(0xfff2f2f7, 0xff2c2c2e);
}

QColor InterfaceColor::secondaryGray() {
  return QColor::fromRgb(0x8e8e93);
}

QColor InterfaceColor::label() {
  return either(0xff000000, 0xffffffff);
}

QColor InterfaceColor::darkTitle() {
  return QColor::fromRgbF(0.1F, 0.1F, 0.1F);
}

QColor InterfaceColor::lightTitle() {
  return QColor::fromRgbF(0.9F, 0.9F, 0.9F);
}

QColor InterfaceColor::shadow() {
  return secondaryGray();
}

QColor InterfaceColor::strongShadow() {
  return label();
}

QColor InterfaceColor::background() {
  return either(0xffffffff, 0xff000000);
}

QColor InterfaceColor::page() {
  return either(0xffeceff1, 0xff121212);
}

QColor InterfaceColor::hairline() {
  QColor color = label();
  color.setAlphaF(0.14F);
  return color;
}

QColor InterfaceColor::fieldNeutral() {
  static const QColor color = either(0xffd1d1d6, 0xff8e8e93);
  return color;
}

QColor InterfaceColor::fieldBackground() {
  return background();
}

QColor InterfaceColor::fieldFill() {
  return either(0x33787880, 0x5c787880);
}

QColor InterfaceColor::red() {
  return either(0xffff3b30, 0xffff453a);
}

QColor InterfaceColor::orange() {
  return either(0xffff9500, 0xffff9f0a);
}

QColor InterfaceColor::adjustedForAppearance(const QColor& color, double factor) {
  if (!Appearance::shared().isDark()) return color;
  float hue = 0;
  float saturation = 0;
  float brightness = 0;
  float alpha = 0;
  color.getHsvF(&hue, &saturation, &brightness, &alpha);
  const float dimmed = std::max(0.0F, brightness * static_cast<float>(factor));
  return QColor::fromHsvF(hue, saturation, dimmed, alpha);
}

}  // namespace tavi
