#pragma once

#include <QStringList>

#include "solution/table_view_cell.h"

namespace tavi {

/// The row of tutorial videos. It is blank until there are players.
class VideoCollectionTableViewCell : public TableViewCell {
  Q_OBJECT
  QML_ELEMENT

 public:
  using TableViewCell::TableViewCell;

  QStringList videoUrlStringArray;
};

/// As high as the first window is wide at the first use, and from then on fixed. Without a window: fatal
/// stop.
double videoRowHeight();

}  // namespace tavi
