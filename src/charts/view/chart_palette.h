#pragma once

#include <QColor>
#include <string>

#include "charts/chart_options.h"

namespace tavi {

/// The colours that charts are drawn in.
struct ChartPalette {
  QColor label;
  QColor gray;
  QColor background;
  /// Of the tree's paths that count, and of the button.
  QColor accent = QColor::fromRgbF(0.93F, 0.25F, 0.48F);
  bool isDark = false;

  /// The colours of the appearance in force.
  static ChartPalette current();

  /// Black on white.
  static ChartPalette printed();

  QColor color(ChartColor role) const;

  /// The colour of a text in that role, legible on the background.
  QColor textColor(ChartColor role) const;

  /// A colour by its description, such as "#ff9900" or "red": as it is told, but to be seen on a dark
  /// background; that of the label if it tells none.
  QColor described(std::string_view description) const;
};

}  // namespace tavi
