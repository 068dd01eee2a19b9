#include "solution/share/table_capture.h"

#include <QCoroFuture>
#include <QCoroTimer>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QPainter>
#include <QtConcurrentRun>
#include <algorithm>
#include <cmath>
#include <utility>

#include "typeset/math_painter.h"

namespace tavi {

namespace {

/// What becomes one picture of the stack. Without a painter it is blank.
struct Piece {
  QSizeF size;
  std::shared_ptr<const RowPainter> painter = {};
};

using Pieces = std::vector<Piece>;

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
  if (!edge.size.isEmpty()) pieces.push_back({edge.size, edge.painter});
}

/// All rows, as wide as the widest must be, between the edges of their sections.
QCoro::Task<Pieces> piecesOf(const PicturedTable& table, const CaptureOptions& options, Pace& pace) {
  Pieces pieces;
  std::vector<std::size_t> rows;
  captureSectionEdge(table.tableHeader, pieces);
  double width = table.width;
  int number = 0;
  for (const TableSection& section : table.sections) {
    if (isIncluded(options.includedHeaderSections, number)) captureSectionEdge(section.header, pieces);
    for (const RowSource& row : section.rows) {
      std::shared_ptr<const RowPainter> painter = row();
      if (!painter) continue;
      width = std::max(width, painter->width());
      rows.push_back(pieces.size());
      pieces.push_back({{}, std::move(painter)});
      co_await pace.breath();
    }
    if (isIncluded(options.includedFooterSections, number)) captureSectionEdge(section.footer, pieces);
    ++number;
  }
  for (const std::size_t row : rows) pieces[row].size = {width, pieces[row].painter->height(width)};
  std::erase_if(pieces, [](const Piece& piece) { return piece.size.isEmpty(); });
  co_return pieces;
}

QImage picture(const Piece& piece, double scale, const RowPalette& palette) {
  QImage image(pixels(piece.size, scale), QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  if (image.isNull() || !piece.painter) return image;
  QPainter painter(&image);
  painter.scale(scale, scale);
  // Whole pixels, so that no ground shines through where two rows meet.
  piece.painter->paint(painter, QSizeF(image.size()) / scale, palette);
  return image;
}

}  // namespace

double pictureScale(QSizeF size, double wanted) {
  return std::min({wanted, largestPictureSide / size.width(), largestPictureSide / size.height(),
                   std::sqrt(mostPicturePixels / (size.width() * size.height()))});
}

QImage mergedImage(std::vector<QImage> pieces) {
  QSize size(0, 0);
  for (const QImage& piece : pieces)
    size = {std::max(size.width(), piece.width()), size.height() + piece.height()};
  QImage merged(size, QImage::Format_ARGB32_Premultiplied);
  if (merged.isNull()) return merged;
  merged.fill(Qt::transparent);
  QPainter painter(&merged);
  int y = 0;
  for (QImage& piece : pieces) {
    painter.drawImage(QPoint(0, y), piece);
    y += piece.height();
    piece = {};  // so that no more than one is held twice
  }
  return merged;
}

QImage framed(const QImage& image, int margin, const QColor& ground) {
  if (image.isNull()) return image;
  QImage frame(image.size().grownBy({margin, margin, margin, margin}), QImage::Format_RGB32);
  frame.fill(ground);
  QPainter(&frame).drawImage(QPoint(margin, margin), image);
  return frame;
}

QCoro::Task<QImage> tableViewScreenshot(PicturedTable table, CaptureOptions options) {
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
  for (const Piece& piece : pieces)
    if (piece.painter && piece.painter->settlingTime().count() > 0)
      co_await QCoro::sleepFor(piece.painter->settlingTime());
  typeset::readMathFont();
  const QFuture<QImage> whole =
      QtConcurrent::run([pieces = std::move(pieces), scale, frame = static_cast<int>(margin * scale),
                         palette = RowPalette::current()]() mutable {
        std::vector<QImage> pictures;
        for (Piece& piece : pieces) pictures.push_back(picture(std::exchange(piece, {}), scale, palette));
        return framed(mergedImage(std::move(pictures)), frame, palette.page);
      });
  co_return co_await whole;
}

}  // namespace tavi
