#pragma once

#include <variant>

#include "solution/rows/chart_row.h"
#include "solution/rows/step_row.h"
#include "solution/rows/video_row.h"

namespace tavi {

/// How high a row is: fixed, or in a ratio to the width of the view. Device-independent pixels.
struct RowHeight {
  Q_GADGET

 public:
  double fixed = 0;
  double ratio = 0;  ///< Width divided by height; 0 for a fixed height.

  Q_INVOKABLE double at(double viewWidth) const { return ratio == 0 ? fixed : 1 / ratio * viewWidth; }

  bool operator==(const RowHeight&) const = default;
};

/// One row of the solution table. A further kind is one more alternative, with its entry in this folder: data
/// with the name of its kind, painter, and QML chosen by that name.
// NOLINTNEXTLINE(bugprone-exception-escape): a font of Qt 6.4 moves without saying that it does not throw.
struct SolutionRow {
  std::variant<SolutionStepTableViewCell, ChartTableViewCell, VideoCollectionTableViewCell> content;
  RowHeight height;

  bool operator==(const SolutionRow&) const = default;
};

/// The name of the row's kind, such as "step".
const char* kindOf(const SolutionRow& row);

/// The row in a picture.
std::unique_ptr<RowPainter> makePainter(const SolutionRow& row, const RowTarget& target);

}  // namespace tavi
