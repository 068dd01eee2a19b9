#pragma once

#include <QColor>
#include <QCoroTask>
#include <QImage>
#include <QSizeF>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <vector>

#include "solution/rows/row_measures.h"
#include "solution/rows/row_painter.h"

namespace tavi {

/// The header or footer of a section: its size, which is empty where there is none, and what draws it.
/// Without a painter it is blank.
struct SectionEdge {
  QSizeF size;
  std::shared_ptr<const RowPainter> painter = {};
};

/// Makes the painter of a row, none if there is no such row any more.
using RowSource = std::function<std::shared_ptr<const RowPainter>()>;

struct TableSection {
  SectionEdge header = {};
  std::vector<RowSource> rows;
  SectionEdge footer = {};
};

/// A table as its picture needs it, whatever becomes of the one on the screen meanwhile. Lengths are
/// device-independent pixels.
struct PicturedTable {
  double width = 0;
  SectionEdge tableHeader = {};
  std::vector<TableSection> sections;
};

struct CaptureOptions {
  /// Which sections are pictured with their header and with their footer; absent: all.
  std::optional<std::set<int>> includedHeaderSections = {};
  std::optional<std::set<int>> includedFooterSections = {};
  /// Around the picture, in the colour of the page.
  double margin = rowMeasures.pageMargin;
};

/// The most pixels a picture of a table has in width and in height, which is what viewers open, and in all.
inline constexpr int largestPictureSide = 16'384;
inline constexpr double mostPicturePixels = 16e6;

/// Pixels to a device-independent one for a picture of that size: `wanted`, or less where the picture would
/// be too large.
double pictureScale(QSizeF size, double wanted);

/// The pieces one below the other, left-aligned, on a transparent ground as wide as the widest. Without
/// pieces a null image.
QImage mergedImage(std::vector<QImage> pieces);

/// The image on a ground of one colour that reaches over each edge by the margin, in pixels.
QImage framed(const QImage& image, int margin, const QColor& ground);

/// One long picture of the whole table, rows that are out of sight included: from the top the table's header,
/// then each section's header, rows and footer. All rows are as wide as the widest needs to be shown whole,
/// and each is given the time it asks for. The table on the screen is not touched. Called in the main thread,
/// which handles events between making two rows and while all are painted. Null for an empty table.
QCoro::Task<QImage> tableViewScreenshot(PicturedTable table, CaptureOptions options = {});

}  // namespace tavi
