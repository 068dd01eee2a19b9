#pragma once

#include <QColor>
#include <QQuickItem>
#include <QString>
#include <optional>

#include "appearance/keypad_palette.h"
#include "appearance/view.h"

namespace tavi {

/// Gives all screens one look by walking the views of a screen and styling each by its kind and tag. Styles
/// are written when a screen comes up, and by its controller again whenever the appearance changes.
class ColorManager {
 public:
  ColorManager() = delete;

  /// A tag for views that are only made translucent.
  static constexpr int translucentTag = 200;

  // No caller here.
  /// Red, green and blue as "#rrggbb", each truncated to 8 bits; absent for a colour without them. A
  /// component that is not finite is a fatal stop.
  static std::optional<QString> hexString(const QColor& color);

  /// In dark appearance the colour with its brightness multiplied by the factor; else as it is.
  static QColor adjustedForAppearance(const QColor& color, double factor);

  static void applyStyle(View& view);
  static void applyStarStyle(View& view);

  /// Styles the views below the item, going down through plain views and stacks.
  static void applyStyleToSubviews(const QQuickItem& item);

  static void applyFloatingShadow(View& view);
};

}  // namespace tavi
