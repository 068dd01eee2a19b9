#include "appearance/keypad_palette.h"

#include <array>

#include "appearance/appearance.h"
#include "appearance/interface_colors.h"

namespace tavi {

namespace {

constexpr double dimming = 0.7;
constexpr int firstTag = 101;

QColor keypadColor(float red, float green, float blue) {
  const QColor color = QColor::fromRgbF(red, green, blue, static_cast<float>(InterfaceColor::colorAlpha));
  return InterfaceColor::adjustedForAppearance(color, dimming);
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
  if (Appearance::shared().isDark()) {
    static const KeypadPalette dark = make();
    return dark;
  }
  static const KeypadPalette light = make();
  return light;
}

std::optional<QColor> KeypadPalette::color(int tag) const {
  const std::array colors{darkGold, brightYellow, strongYellow, pink, darkMagenta};
  if (tag < firstTag || tag >= firstTag + static_cast<int>(colors.size())) return std::nullopt;
  return colors.at(static_cast<std::size_t>(tag - firstTag));
}

}  // namespace tavi
