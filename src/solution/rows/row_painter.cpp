#include "solution/rows/row_painter.h"

#include "appearance/interface_colors.h"
#include "appearance/keypad_palette.h"

namespace tavi {

RowPalette RowPalette::current() {
  return {.page = InterfaceColor::page(),
          .card = InterfaceColor::background(),
          .text = InterfaceColor::label(),
          .hairline = InterfaceColor::hairline(),
          .accent = KeypadPalette::make().pink};
}

}  // namespace tavi
