#include "charts/view/chart_item.h"

#include <QPainter>
#include <utility>

#include "appearance/appearance.h"
#include "charts/view/canvas.h"
#include "charts/view/chart_words.h"
#include "charts/view/unit_circle_picture.h"
#include "typeset/math_label.h"

namespace tavi {

ChartItem::ChartItem(QQuickItem* parent) : QQuickPaintedItem(parent) {
  connect(&Appearance::shared(), &Appearance::changed, this, &ChartItem::makePicture);
}

void ChartItem::setCharts(const ChartRow& charts) {
  if (charts == charts_) return;
  charts_ = charts;
  view_.reset();
  moment_.mark.reset();
  makePicture();
  emit chartsChanged();
  emit markChanged();
}

void ChartItem::setProgress(double progress) {
  if (progress == std::exchange(moment_.progress, progress)) return;
  update();
  emit progressChanged();
}

void ChartItem::setScroll(QPointF scroll) {
  if (moment_.scroll == scroll) return;
  moment_.scroll = scroll;
  update();
  emit scrollChanged();
}

QRectF ChartItem::frame() const {
  return chartFrameIn(size());
}

QSizeF ChartItem::contentSize() const {
  return picture_ ? picture_->contentSize() : frame().size();
}

QRectF ChartItem::replayButton() const {
  return duration() > 0 ? tavi::replayButton(frame().size()).translated(frame().topLeft()) : QRectF();
}

const UnitCircleChartView* ChartItem::circle() const {
  return view_ ? std::get_if<UnitCircleChartView>(view_.get()) : nullptr;
}

double ChartItem::duration() const {
  return circle() == nullptr ? 0 : 1000 * tavi::duration(*circle());
}

bool ChartItem::isRunning() const {
  return circle() != nullptr && unitCircleState(*circle(), moment_.progress).isRunning;
}

bool ChartItem::hasPoints() const {
  return coordinates() != nullptr && coordinates()->first().has_value();
}

QString ChartItem::words() const {
  return view_ ? QString::fromStdString(chartWords(*view_, typeset::translatedPhrase)) : QString();
}

QString ChartItem::markedWords() const {
  if (coordinates() == nullptr || !moment_.mark) return {};
  const ChartOptions& options = *optionsOf(*view_);
  const ChartSeries& series = options.series[moment_.mark->series];
  return (QStringList(textOf(series.name)) + tooltipLines(options, series.points[moment_.mark->point]))
      .join(", ");
}

void ChartItem::markAt(QPointF place) {
  if (coordinates() != nullptr) setMark(coordinates()->nearest(place - frame().topLeft()));
}

void ChartItem::unmark() {
  setMark(std::nullopt);
}

bool ChartItem::markNextPoint(int way) {
  if (!hasPoints()) return false;
  setMark(moment_.mark ? coordinates()->nextPoint(*moment_.mark, way) : coordinates()->first());
  return true;
}

bool ChartItem::markNextSeries(int way) {
  if (!hasPoints()) return false;
  setMark(moment_.mark ? coordinates()->nextSeries(*moment_.mark, way) : coordinates()->first());
  return true;
}

void ChartItem::setMark(const std::optional<ChartMark>& mark) {
  if (mark == moment_.mark) return;
  moment_.mark = mark;
  update();
  emit markChanged();
}

void ChartItem::makePicture() {
  picture_.reset();
  if (isVisible() && isComponentComplete() && !frame().isEmpty()) {
    if (!view_) {
      if (auto made = ChartManager::chartView(charts_))
        view_ = std::make_shared<const ChartView>(std::move(*made));
    }
    if (view_)
      picture_ = std::make_shared<const ChartPicture>(view_, frame().size(), ChartPalette::current());
  } else if (!isVisible()) {
    view_.reset();
  }
  update();
  emit pictureChanged();
}

void ChartItem::componentComplete() {
  QQuickPaintedItem::componentComplete();
  makePicture();
}

void ChartItem::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
  QQuickPaintedItem::geometryChange(newGeometry, oldGeometry);
  if (newGeometry.size() != oldGeometry.size()) makePicture();
}

void ChartItem::itemChange(ItemChange change, const ItemChangeData& value) {
  QQuickPaintedItem::itemChange(change, value);
  if (change == ItemVisibleHasChanged) makePicture();
}

QSGNode* ChartItem::updatePaintNode(QSGNode* node, UpdatePaintNodeData* data) {
  shownPicture_ = picture_;
  shownMoment_ = moment_;
  return QQuickPaintedItem::updatePaintNode(node, data);
}

void ChartItem::paint(QPainter* painter) {
  if (!shownPicture_) return;
  painter->save();
  painter->translate(chartFrameIn(size()).topLeft());
  shownPicture_->paint(*painter, shownMoment_);
  painter->restore();
}

}  // namespace tavi
