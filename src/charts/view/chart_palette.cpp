#include "charts/view/chart_palette.h"

#include "appearance/appearance.h"
#include "appearance/contrast.h"
#include "appearance/interface_colors.h"

namespace tavi {

ChartPalette ChartPalette::current() {
  return {.label = InterfaceColor::label(),
          .gray = InterfaceColor::secondaryGray(),
          .background = InterfaceColor::background(),
          .isDark = Appearance::shared().isDark()};
}

ChartPalette ChartPalette::printed() {
  return {.label = Qt::black, .gray = InterfaceColor::secondaryGray(), .background = Qt::white};
}

QColor ChartPalette::color(ChartColor role) const {
  switch (role) {
    case ChartColor::gray:
      return gray;
    case ChartColor::label:
      return label;
    case ChartColor::background:
      break;
  }
  return background;
}

QColor ChartPalette::textColor(ChartColor role) const {
  return legible(color(role), background);
}

QColor ChartPalette::described(std::string_view description) const {
  const QColor color(QString::fromUtf8(description.data(), static_cast<qsizetype>(description.size())));
  if (!color.isValid()) return label;
  return isDark ? legible(color, background) : color;
}

}  // namespace tavi
