#pragma once

#include <QColor>

namespace tavi {

/// The colours of the interface, each as the appearance in force has it when it is read.
struct InterfaceColor {
  InterfaceColor() = delete;

  static QColor groupedBackground();
  static QColor secondaryGray();  ///< Disabled tab titles, chart labels.
  static QColor label();          ///< Text.
  static QColor darkTitle();      ///< Text and icons on the warm colours, in both appearances.
  static QColor lightTitle();     // No caller here.
  static QColor shadow();         ///< Of buttons.
  static QColor strongShadow();   ///< Of floating elements.
  static QColor background();     ///< Fields, cards and charts.
  static QColor page();           ///< Behind the pages.
  static QColor hairline();       ///< Thin separating lines.
  static QColor fieldNeutral();   ///< Border of a field at rest; fixed by the first reading.
  static QColor fieldBackground();
  static QColor fieldFill();  ///< Background of a disabled field.
  static QColor red();        ///< Border of a field with a wrong value.
  static QColor orange();     ///< Border of a field whose value is missing.

  /// In dark appearance the colour with its brightness multiplied by the factor; else as it is.
  static QColor adjustedForAppearance(const QColor& color, double factor);

  /// Alpha of the five keypad colours.
  static constexpr double colorAlpha = 1.0;
};

}  // namespace tavi
