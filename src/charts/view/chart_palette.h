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
  QColor accent;  ///< Of the tree's paths that count, and of the button.
  bool isDark = false;

  /// The colours of the appearance in force.
  static ChartPalette current();

  QColor color(ChartColor role) const;

  /// The colour of a text in that role, legible on the background.
  QColor textColor(ChartColor role) const;

  /// A colour by its description, such as "#ff9900" or "red": as it is told, but to be seen on a dark
  /// background; that of the label if it tells none.
  QColor described(std::string_view description) const;
};

}  // namespace tavi
