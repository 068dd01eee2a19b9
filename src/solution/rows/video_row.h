#pragma once

#include <QObject>
#include <QStringList>
#include <memory>

#include "solution/rows/row_painter.h"

namespace tavi {

/// The row of tutorial videos.
struct VideoCollectionTableViewCell {
  Q_GADGET

 public:
  static constexpr const char* kind = "video";

  QStringList videoUrlStringArray;

  bool operator==(const VideoCollectionTableViewCell&) const = default;
};

/// Without players there is nothing to be seen of the row.
std::unique_ptr<RowPainter> makePainter(const VideoCollectionTableViewCell& row);

/// As high as the first window is wide at the first use, and from then on fixed. Without a window: fatal
/// stop.
double videoRowHeight();

}  // namespace tavi
