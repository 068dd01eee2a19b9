#pragma once

#include <QColor>
#include <optional>

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

  /// The one palette of the appearance in force. Each of the two is made at its first use.
  static const KeypadPalette& shared();

  /// The colour of a tag from 101 to 105; absent for any other.
  std::optional<QColor> color(int tag) const;
};

}  // namespace tavi
