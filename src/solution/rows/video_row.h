#pragma once

#include <QObject>
#include <QStringList>
#include <memory>

#include "solution/rows/row_painter.h"

namespace tavi {

/// The row of tutorial videos.
struct VideoCollectionTableViewCell {
  Q_GADGET
  Q_PROPERTY(QStringList videoUrlStringArray MEMBER videoUrlStringArray)

 public:
  static constexpr const char* kind = "video";

  QStringList videoUrlStringArray;
  bool isLocked = true;  ///< How a picture of the row shows it.

  bool operator==(const VideoCollectionTableViewCell&) const = default;
};

/// The row with no player in it: locked, or with its videos covered.
std::unique_ptr<RowPainter> makePainter(const VideoCollectionTableViewCell& row);

/// As high as the first window is wide at the first use, and from then on fixed. Without a window: fatal
/// stop.
double videoRowHeight();

}  // namespace tavi
