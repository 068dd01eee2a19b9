#include "solution/rows/video_row.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QWindow>

#include "appearance/interface_colors.h"
#include "appearance/interface_fonts.h"
#include "appearance/text_drawing.h"
#include "number/fatal_stop.h"
#include "output/localized_string.h"
#include "solution/rows/row_measures.h"

namespace tavi {

namespace {

constexpr RowMeasures measures;
constexpr double headHeight = 64;
constexpr double tileRadius = 12;
constexpr double tileGap = 16;

double widthOfFirstWindow() {
  const QWindowList windows = QGuiApplication::topLevelWindows();
  if (windows.isEmpty()) fatalStop("a row of videos without a window");
  return windows.first()->width();
}

void fillRounded(QPainter& painter, const QRectF& place, double radius, const QColor& color) {
  QPainterPath path;
  path.addRoundedRect(place, radius, radius);
  painter.fillPath(path, color);
}

/// The row without players: under its veil, or with its videos covered.
class VideoRowPainter : public RowPainter {
 public:
  explicit VideoRowPainter(VideoCollectionTableViewCell row) : row_(std::move(row)) {}

  double height(double) const override {
    return measures.pageMargin + measures.videoCardHeight(videoRowHeight(), videoRowHeight());
  }

  void paint(QPainter& painter, QSizeF size, const RowPalette& palette) const override {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF card(0, measures.pageMargin, size.width(), size.height() - measures.pageMargin);
    fillRounded(painter, card, measures.corner, palette.card);
    painter.setPen(palette.text);
    const TextBlock title(QString::fromStdString(LocalizedString::recommendedVideoIfUnclear.text()),
                          InterfaceFont::medium(16), size.width() - 2 * measures.edge);
    title.draw(painter, {measures.edge, card.top() + (headHeight - title.height()) / 2});
    const QRectF place = card.adjusted(measures.edge, headHeight, -measures.edge, -measures.edge);
    if (row_.isLocked)
      paintVeil(painter, place, palette);
    else
      paintTiles(painter, place, palette);
    painter.restore();
  }

 private:
  static void paintVeil(QPainter& painter, const QRectF& place, const RowPalette& palette) {
    fillRounded(painter, place, tileRadius, palette.page);
    const QPointF middle = place.center();
    const QColor gray = InterfaceColor::secondaryGray();
    painter.setPen(QPen(gray, 5, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(QRectF(middle.x() - 10, middle.y() - 24, 20, 20), 0, 180 * 16);
    painter.drawLine(middle + QPointF(-10, -14), middle + QPointF(-10, -4));
    painter.drawLine(middle + QPointF(10, -14), middle + QPointF(10, -4));
    fillRounded(painter, {middle.x() - 18, middle.y() - 6, 36, 28}, 4, gray);
  }

  void paintTiles(QPainter& painter, const QRectF& place, const RowPalette& palette) const {
    painter.setClipRect(place);
    QRectF tile(place.topLeft(), QSizeF(place.height(), place.height()));
    for (qsizetype i = 0; i < row_.videoUrlStringArray.size() && tile.left() < place.right(); ++i) {
      fillRounded(painter, tile, tileRadius, palette.page);
      painter.setPen(QPen(InterfaceColor::secondaryGray(), 2));
      painter.drawEllipse(tile.center(), 32, 32);
      QPainterPath sign(tile.center() + QPointF(-9, -14));
      sign.lineTo(tile.center() + QPointF(15, 0));
      sign.lineTo(tile.center() + QPointF(-9, 14));
      sign.closeSubpath();
      painter.fillPath(sign, InterfaceColor::secondaryGray());
      tile.translate(tile.width() + tileGap, 0);
    }
  }

  VideoCollectionTableViewCell row_;
};

}  // namespace

std::unique_ptr<RowPainter> makePainter(const VideoCollectionTableViewCell& row) {
  return std::make_unique<VideoRowPainter>(row);
}

double videoRowHeight() {
  static const double height = widthOfFirstWindow();
  return height;
}

}  // namespace tavi
