#include "solution/rows/row_stack.h"

#include <QPainter>
#include <algorithm>

#include "solution/rows/row_measures.h"

namespace tavi {

RowStack::RowStack(const std::vector<SolutionRow>& rows, double viewWidth)
    : rowWidth_(viewWidth - 2 * rowMeasures.pageMargin) {
  for (const SolutionRow& row : rows) painters_.push_back(makePainter(row, {.viewWidth = viewWidth}));
  for (const auto& painter : painters_) rowWidth_ = std::max(rowWidth_, painter->width());
  double height = 2 * rowMeasures.pageMargin;
  for (const auto& painter : painters_) height += painter->height(rowWidth_);
  size_ = {rowWidth_ + 2 * rowMeasures.pageMargin, height};
}

void RowStack::paint(QPainter& painter, const RowPalette& palette) const {
  painter.fillRect(QRectF({}, size_), palette.page);
  painter.save();
  painter.translate(rowMeasures.pageMargin, rowMeasures.pageMargin);
  for (const auto& row : painters_) {
    const QSizeF size(rowWidth_, row->height(rowWidth_));
    row->paint(painter, size, palette);
    painter.translate(0, size.height());
  }
  painter.restore();
}

}  // namespace tavi
