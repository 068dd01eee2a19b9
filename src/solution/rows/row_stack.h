#pragma once

#include <memory>
#include <vector>

#include "solution/rows/solution_row.h"

namespace tavi {

/// Rows one below the other as one picture on the ground of the page, as a page of that width shows them but
/// with nothing cut. Lengths are device-independent pixels. Main thread only.
class RowStack {
 public:
  RowStack(const std::vector<SolutionRow>& rows, double viewWidth);

  QSizeF size() const { return size_; }
  void paint(QPainter& painter, const RowPalette& palette) const;

 private:
  std::vector<std::unique_ptr<RowPainter>> painters_;
  double rowWidth_ = 0;
  QSizeF size_;
};

}  // namespace tavi
