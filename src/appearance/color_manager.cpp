#include "appearance/color_manager.h"

#include <array>
#include <cmath>

#include "appearance/appearance.h"
#include "appearance/interface_colors.h"
#include "number/fatal_stop.h"

namespace tavi {

namespace {

constexpr double dimming = 0.7;
constexpr int firstTag = 101;

QColor keypadColor(float red, float green, float blue) {
  const QColor color = QColor::fromRgbF(red, green, blue, static_cast<float>(InterfaceColor::colorAlpha));
  return ColorManager::adjustedForAppearance(color, dimming);
}

int component(float value) {
  if (!std::isfinite(value)) fatalStop("a colour component is not finite");
  return static_cast<int>(value * 255.0F);
}

/// In dark appearance an earlier shadow stays as it is.
void applyButtonShadow(View& view) {
  if (Appearance::shared().isDark()) return;
  view.setShadow({.color = InterfaceColor::shadow(), .opacity = 0.7, .offset = {0, 1}, .radius = 1});
}

}  // namespace

KeypadPalette KeypadPalette::make() {
  return {.darkGold = keypadColor(0.78F, 0.58F, 0),
          .brightYellow = keypadColor(1, 0.96F, 0.31F),
          .strongYellow = keypadColor(1, 0.77F, 0),
          .pink = keypadColor(0.93F, 0.25F, 0.48F),
          .darkMagenta = keypadColor(0.71F, 0, 0.31F)};
}

const KeypadPalette& KeypadPalette::shared() {
  static const KeypadPalette palette = make();
  return palette;
}

std::optional<QColor> KeypadPalette::color(int tag) const {
  const std::array colors{darkGold, brightYellow, strongYellow, pink, darkMagenta};
  if (tag < firstTag || tag >= firstTag + static_cast<int>(colors.size())) return std::nullopt;
  return colors.at(static_cast<std::size_t>(tag - firstTag));
}

std::optional<QString> ColorManager::hexString(const QColor& color) {
  if (!color.isValid()) return std::nullopt;
  float red = 0;
  float green = 0;
  float blue = 0;
  color.getRgbF(&red, &green, &blue);
  const int rgb = component(red) << 16 | component(green) << 8 | component(blue);
  return QStringLiteral("#%1").arg(rgb, 6, 16, QLatin1Char('0'));
}

QColor ColorManager::adjustedForAppearance(const QColor& color, double factor) {
  if (!Appearance::shared().isDark()) return color;
  float hue = 0;
  float saturation = 0;
  float brightness = 0;
  float alpha = 0;
  color.getHsvF(&hue, &saturation, &brightness, &alpha);
  const float dimmed = std::max(0.0F, brightness * static_cast<float>(factor));
  return QColor::fromHsvF(hue, saturation, dimmed, alpha);
}

void ColorManager::applyStyle(View& view) {
  if (const auto color = KeypadPalette::shared().color(view.tag())) view.setBackgroundColor(*color);
  if (view.tag() == translucentTag) view.setAlpha(Appearance::shared().isDark() ? 0.3 : 0.5);
  if (view.isButton()) {
    view.setTitleColor(InterfaceColor::darkTitle());
    view.setTintColor(InterfaceColor::darkTitle());
  }
  if (view.kind() == View::Kind::FlatButton) view.setImageTintColor(InterfaceColor::darkTitle());
  applyButtonShadow(view);
}

void ColorManager::applyStarStyle(View& view) {
  if (const auto color = KeypadPalette::shared().color(view.tag())) view.setFilledColor(*color);
  applyButtonShadow(view);
}

void ColorManager::applyStyleToSubviews(const QQuickItem& item) {
  for (const QQuickItem* subview : View::subviews(item)) {
    View& view = *View::of(subview);
    switch (view.kind()) {
      case View::Kind::Plain:
        if (View::subviews(*subview).empty())
          applyStyle(view);
        else
          applyStyleToSubviews(*subview);
        break;
      case View::Kind::Stack:
        applyStyleToSubviews(*subview);
        break;
      case View::Kind::Button:
      case View::Kind::FlatButton:
      case View::Kind::FloatingButton:
      case View::Kind::Image:
        applyStyle(view);
        break;
      case View::Kind::Stars:
        applyStarStyle(view);
        break;
      case View::Kind::TextField:
        view.setBackgroundColor(InterfaceColor::background());
        break;
      default:
        break;
    }
  }
}

void ColorManager::applyFloatingShadow(View& view) {
  const bool isDark = Appearance::shared().isDark();
  view.setShadow({.color = InterfaceColor::strongShadow(),
                  .opacity = 0.5,
                  .offset = isDark ? QPointF() : QPointF(0, 1.5),
                  .radius = isDark ? 1.0 : 2.0});
}

}  // namespace tavi
