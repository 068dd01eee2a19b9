#include "solution/table_capture.h"

#include <QCoroTimer>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QPainter>
#include <QPointer>
#include <algorithm>
#include <cmath>
#include <vector>

#include "appearance/interface_colors.h"
#include "shell/frame/screenshot.h"
#include "solution/chart_table_view_cell.h"

namespace tavi {

namespace {

/// What becomes one picture of the stack.
struct Piece {
  QSizeF size;
  std::unique_ptr<TableViewCell> cell = {};
  QPointer<QQuickItem> view = {};  ///< Without a cell: what is pictured, or nothing for a blank.
};

using Pieces = std::vector<Piece>;

/// Pieces one below the other, left-aligned, on a ground of one colour with a margin. Each is drawn as it
/// comes, so that no more than one is held beside the whole.
class MergedImage {
 public:
  MergedImage(QSize content, const QColor& ground, int margin)
      : image_(content.grownBy({margin, margin, margin, margin}), QImage::Format_RGB32),
        margin_(margin),
        y_(margin) {
    image_.fill(ground);
  }

  void append(const QImage& piece) {
    QPainter(&image_).drawImage(QPoint(margin_, y_), piece);
    y_ += piece.height();
  }

  /// The image, without the place of pieces that did not come.
  QImage take() {
    const int height = y_ + margin_;
    return height == image_.height() ? std::move(image_) : image_.copy(0, 0, image_.width(), height);
  }

 private:
  QImage image_;
  int margin_;
  int y_;
};

bool isIncluded(const std::optional<std::set<int>>& sections, int section) {
  return !sections || sections->contains(section);
}

QSize pixels(QSizeF size, double scale) {
  return {static_cast<int>(std::floor(size.width() * scale)),
          static_cast<int>(std::floor(size.height() * scale))};
}

/// Lets the interface live: after each piece of work, events are handled if they have waited for a while. At
/// every row they would be handled in vain most of the time.
class Pace {
 public:
  Pace() { sinceEvents_.start(); }

  QCoro::Task<> breath() {
    constexpr int longestWait = 8;  // milliseconds, half a frame
    if (sinceEvents_.elapsed() < longestWait) co_return;
    co_await QCoro::sleepFor(std::chrono::milliseconds(0));
    sinceEvents_.start();
  }

 private:
  QElapsedTimer sinceEvents_;
};

void captureSectionEdge(const SectionEdge& edge, Pieces& pieces) {
  if (!edge.size.isEmpty()) pieces.push_back({.size = edge.size, .view = edge.view});
}

/// Cells for all rows, as wide as the widest must be, between the edges of their sections.
QCoro::Task<Pieces> piecesOf(std::shared_ptr<const TableDataSource> table, CaptureOptions options,
                             Pace& pace) {
  Pieces pieces;
  if (QQuickItem* header = table->tableHeaderView())
    pieces.push_back({.size = header->size(), .view = header});
  double width = table->width();
  for (int section = 0; section < table->numberOfSections(); ++section) {
    if (isIncluded(options.includedHeaderSections, section))
      captureSectionEdge(table->header(section), pieces);
    for (int row = 0; row < table->numberOfRows(section); ++row) {
      std::unique_ptr<TableViewCell> cell = table->cellForRow(section, row);
      if (!cell) continue;
      width = std::max(width, cell->widthForPicture());
      pieces.push_back({.size = {0, table->heightForRow(section, row)}, .cell = std::move(cell)});
      co_await pace.breath();
    }
    if (isIncluded(options.includedFooterSections, section))
      captureSectionEdge(table->footer(section), pieces);
  }
  for (Piece& piece : pieces)
    if (piece.cell) piece.size = {width, piece.cell->heightForPicture(width, piece.size.height())};
  co_return pieces;
}

QCoro::Task<QImage> capture(Piece& piece, QQuickItem* cellParent, double scale,
                            std::chrono::milliseconds chartDelay) {
  const QSize size = pixels(piece.size, scale);
  if (piece.cell) {
    // Whole pixels, so that no ground shines through where two rows meet.
    piece.cell->setSize(QSizeF(size) / scale);
    piece.cell->setBackgroundColor(InterfaceColor::background());
    piece.cell->setParentItem(cellParent);
    if (auto* chart = qobject_cast<ChartTableViewCell*>(piece.cell.get())) {
      chart->startChartAnimation();
      co_await QCoro::sleepFor(chartDelay);
    }
    co_return co_await piece.cell->screenshot(scale);
  }
  if (piece.view) {
    const QImage image = co_await screenshotForCroppingRect(*piece.view, {{}, QSizeF(size) / scale}, scale);
    if (!image.isNull()) co_return image;
  }
  QImage blank(size, QImage::Format_ARGB32_Premultiplied);
  blank.fill(Qt::transparent);
  co_return blank;
}

}  // namespace

double pictureScale(QSizeF size, double wanted) {
  return std::min({wanted, largestPictureSide / size.width(), largestPictureSide / size.height(),
                   std::sqrt(mostPicturePixels / (size.width() * size.height()))});
}

QCoro::Task<QImage> tableViewScreenshot(std::shared_ptr<const TableDataSource> table,
                                        CaptureOptions options) {
  constexpr double leastScale = 2;
  Pace pace;
  Pieces pieces = co_await piecesOf(table, options, pace);
  QSizeF content(0, 0);
  for (const Piece& piece : pieces)
    content = {std::max(content.width(), piece.size.width()), content.height() + piece.size.height()};
  if (content.isEmpty()) co_return {};

  const double margin = options.margin;
  const double scale = pictureScale(content.grownBy({margin, margin, margin, margin}),
                                    std::max(leastScale, qGuiApp->devicePixelRatio()));
  QSize merged(0, 0);
  for (const Piece& piece : pieces) {
    const QSize size = pixels(piece.size, scale);
    merged = {std::max(merged.width(), size.width()), merged.height() + size.height()};
  }
  MergedImage image(merged, InterfaceColor::page(), static_cast<int>(margin * scale));
  for (Piece& piece : pieces) {
    const QImage picture = co_await capture(piece, table->cellParent(), scale, options.chartDelay);
    piece.cell.reset();
    if (!picture.isNull()) image.append(picture);
    co_await pace.breath();
  }
  co_return image.take();
}

}  // namespace tavi
