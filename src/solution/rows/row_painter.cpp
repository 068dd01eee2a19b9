#include "solution/rows/row_painter.h"

#include "appearance/interface_colors.h"
#include "appearance/keypad_palette.h"

namespace tavi {

RowPalette RowPalette::current() {
  return {.page = InterfaceColor::page(),
          .card = InterfaceColor::background(),
          .text = InterfaceColor::label(),
          .hairline = InterfaceColor::hairline(),
          .accent = KeypadPalette::make().pink,
          .chart = ChartPalette::current()};
}

RowPalette RowPalette::printed() {
  return {.page = Qt::white,
          .card = Qt::white,
          .text = Qt::black,
          .hairline = QColor::fromRgb(0xd1d1d6),
          .accent = QColor::fromRgbF(0.93F, 0.25F, 0.48F),
          .chart = ChartPalette::printed()};
}

}  // namespace tavi
