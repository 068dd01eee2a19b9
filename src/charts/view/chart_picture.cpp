#include "charts/view/chart_picture.h"

#include <QPainter>
#include <QPainterPath>

#include "charts/view/canvas.h"
#include "charts/view/presentation_picture.h"
#include "charts/view/tree_picture.h"
#include "charts/view/unit_circle_picture.h"

namespace tavi {

namespace {

constexpr double cardRadius = 12;

template <typename... Handlers>
struct Overloaded : Handlers... {
  using Handlers::operator()...;
};
template <typename... Handlers>
Overloaded(Handlers...) -> Overloaded<Handlers...>;

}  // namespace

ChartPicture::ChartPicture(std::shared_ptr<const ChartView> view, QSizeF size, const ChartPalette& palette)
    : view_(std::move(view)), size_(size), palette_(palette) {
  if (const ChartOptions* options = optionsOf(*view_)) coordinates_.emplace(*options, size_, palette_);
}

QSizeF ChartPicture::contentSize() const {
  const auto* tree = std::get_if<TreeChartView>(view_.get());
  return tree == nullptr ? size_ : size_.expandedTo({tree->width, tree->height});
}

void ChartPicture::paint(QPainter& painter, const ChartMoment& moment) const {
  drawCard(painter, QRectF({}, size_), cardRadius, palette_.background, palette_.label, palette_.isDark);
  painter.save();
  QPainterPath card;
  card.addRoundedRect(QRectF({}, size_), cardRadius, cardRadius);
  painter.setClipPath(card, Qt::IntersectClip);
  std::visit(Overloaded{[&](const CoordinateChartView&) { coordinates_->paint(painter, moment.mark); },
                        [&](const TreeChartView& tree) {
                          paintTree(painter, tree, size_, moment.scroll.value_or(startOfTree(tree, size_)),
                                    palette_);
                        },
                        [&](const UnitCircleChartView& circle) {
                          paintUnitCircle(painter, circle, size_, moment.progress, palette_);
                        },
                        [&](const DistributionFunctionPresentationView& view) {
                          paintPresentation(painter, view, size_, palette_);
                        }},
             *view_);
  painter.restore();
}

QRectF chartFrameIn(QSizeF row) {
  constexpr double margin = 0.05;
  return {QPointF(margin * row.width(), margin * row.height()), row * (1 - 2 * margin)};
}

void paintChartRow(QPainter& painter, QSizeF size, std::shared_ptr<const ChartView> view,
                   const ChartPalette& palette, const ChartMoment& moment) {
  const QRectF frame = chartFrameIn(size);
  painter.save();
  painter.translate(frame.topLeft());
  ChartPicture(std::move(view), frame.size(), palette).paint(painter, moment);
  painter.restore();
}

}  // namespace tavi
