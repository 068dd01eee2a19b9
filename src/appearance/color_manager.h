#pragma once

#include <QColor>
#include <QQuickItem>
#include <QString>
#include <optional>

#include "appearance/view.h"

namespace tavi {

/// The five warm colours of the keypad, which the toolbars, the side menu and accents share.
struct KeypadPalette {
  QColor darkGold;      ///< Tag 101.
  QColor brightYellow;  ///< Tag 102.
  QColor strongYellow;  ///< Tag 103.
  QColor pink;          ///< Tag 104.
  QColor darkMagenta;   ///< Tag 105.

  /// The colours for the appearance in force.
  static KeypadPalette make();

  /// Made at the first use; the appearance at that moment decides for the life of the process.
  static const KeypadPalette& shared();

  /// The colour of a tag from 101 to 105; absent for any other.
  std::optional<QColor> color(int tag) const;
};

/// Gives all screens one look by walking the views of a screen and styling each by its kind and tag. Styles
/// are written once, when a screen comes up; a change of the appearance reaches an open screen at the next
/// time.
class ColorManager {
 public:
  ColorManager() = delete;

  /// A tag for views that are only made translucent.
  static constexpr int translucentTag = 200;

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
