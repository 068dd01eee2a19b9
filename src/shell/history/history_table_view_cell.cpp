#include "shell/history/history_table_view_cell.h"

#include "appearance/appearance.h"
#include "appearance/interface_colors.h"

namespace tavi {

HistoryTableViewCell::HistoryTableViewCell(QQuickItem* parent) : QQuickItem(parent) {
  connect(&Appearance::shared(), &Appearance::changed, this, &HistoryTableViewCell::prepare);
}

void HistoryTableViewCell::setMathLabel(typeset::MathLabel* label) {
  mathLabel = label;
  prepare();
}

void HistoryTableViewCell::prepare() {
  if (!mathLabel) return;
  QColor color = InterfaceColor::label();
  color.setAlphaF(0.9F);
  mathLabel->setTextColor(color);
}

}  // namespace tavi
