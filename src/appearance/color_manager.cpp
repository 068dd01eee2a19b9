#include "appearance/color_manager.h"

#include <cmath>

#include "appearance/appearance.h"
#include "appearance/interface_colors.h"
#include "number/fatal_stop.h"

namespace tavi {

namespace {

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
  return InterfaceColor::adjustedForAppearance(color, factor);
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
