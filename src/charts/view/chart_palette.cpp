#include "charts/view/chart_palette.h"

#include "appearance/appearance.h"
#include "appearance/contrast.h"
#include "appearance/interface_colors.h"

namespace tavi {

ChartPalette ChartPalette::current() {
  return {.label = InterfaceColor::label(),
          .gray = InterfaceColor::secondaryGray(),
          .background = InterfaceColor::background(),
          .accent = QColor::fromRgbF(0.93F, 0.25F, 0.48F),
          .isDark = Appearance::shared().isDark()};
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
