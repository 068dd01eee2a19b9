#pragma once

#include <QColor>
#include <QQuickItem>
#include <chrono>
#include <memory>
#include <optional>
#include <set>

#include "solution/table_view_cell.h"

namespace tavi {

/// The header or footer of a section: its size, which is empty where there is none, and what shows it.
/// Without a view, or where that has no picture, it is blank.
struct SectionEdge {
  QSizeF size;
  QQuickItem* view = nullptr;
};

/// A table as its picture needs it. Lengths are device-independent pixels.
class TableDataSource {
 public:
  virtual ~TableDataSource() = default;

  virtual double width() const = 0;

  /// Where cells stand that only a window can draw; none without a window.
  virtual QQuickItem* cellParent() const = 0;

  virtual QQuickItem* tableHeaderView() const { return nullptr; }
  virtual SectionEdge header(int /*section*/) const { return {}; }
  virtual SectionEdge footer(int /*section*/) const { return {}; }

  virtual int numberOfSections() const = 0;
  virtual int numberOfRows(int section) const = 0;
  virtual double heightForRow(int section, int row) const = 0;

  /// A filled cell for the row, none if there is no such row any more.
  virtual std::unique_ptr<TableViewCell> cellForRow(int section, int row) const = 0;
};

struct CaptureOptions {
  /// Which sections are pictured with their header and with their footer; absent: all.
  std::optional<std::set<int>> includedHeaderSections;
  std::optional<std::set<int>> includedFooterSections;
  /// What a row of charts is given to draw itself.
  std::chrono::milliseconds chartDelay{2000};
  /// Around the picture, in the colour of the page.
  double margin = 16;
};

/// The most pixels a picture of a table has in width and in height, which is what viewers open, and in all.
inline constexpr int largestPictureSide = 16'384;
inline constexpr double mostPicturePixels = 16e6;

/// Pixels to a device-independent one for a picture of that size: `wanted`, or less where the picture would
/// be too large.
double pictureScale(QSizeF size, double wanted);

/// One long picture of the whole table, rows that are out of sight included: from the top the table's header,
/// then each section's header, rows and footer. All rows are as wide as the widest needs to be shown whole.
/// The table on the screen is not touched. Events are handled between the rows; main thread only. Null for an
/// empty table.
QCoro::Task<QImage> tableViewScreenshot(std::shared_ptr<const TableDataSource> table,
                                        CaptureOptions options = {});

}  // namespace tavi
