#pragma once

#include <QPointF>
#include <QQuickPaintedItem>
#include <QRectF>
#include <QSizeF>
#include <QStringList>
#include <memory>
#include <optional>

#include "charts/chart_data.h"
#include "charts/view/chart_picture.h"

namespace tavi {

/// A row of charts on the screen, drawn as in every picture of it. While it is not visible it holds no more
/// than the descriptions.
class ChartItem : public QQuickPaintedItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(tavi::ChartRow charts READ charts WRITE setCharts NOTIFY chartsChanged)
  Q_PROPERTY(double progress READ progress WRITE setProgress NOTIFY progressChanged)
  Q_PROPERTY(QPointF scroll READ scroll WRITE setScroll NOTIFY scrollChanged)
  Q_PROPERTY(QRectF frame READ frame NOTIFY pictureChanged)
  Q_PROPERTY(QSizeF contentSize READ contentSize NOTIFY pictureChanged)
  Q_PROPERTY(QRectF replayButton READ replayButton NOTIFY pictureChanged)
  Q_PROPERTY(double duration READ duration NOTIFY pictureChanged)
  Q_PROPERTY(bool isRunning READ isRunning NOTIFY progressChanged)
  Q_PROPERTY(bool hasPoints READ hasPoints NOTIFY pictureChanged)
  Q_PROPERTY(QString words READ words NOTIFY pictureChanged)
  Q_PROPERTY(QString markedWords READ markedWords NOTIFY markChanged)

 public:
  explicit ChartItem(QQuickItem* parent = nullptr);

  const ChartRow& charts() const { return charts_; }
  void setCharts(const ChartRow& charts);

  /// Of the animation, from 0 to 1.
  double progress() const { return moment_.progress; }
  void setProgress(double progress);

  /// What of a tree lies at the upper left corner of the frame.
  QPointF scroll() const { return moment_.scroll.value_or(QPointF()); }
  void setScroll(QPointF scroll);

  /// Where the chart stands in the row.
  QRectF frame() const;

  /// What is scrolled within the frame, no smaller than it.
  QSizeF contentSize() const;

  /// Where the button to play the animation again stands in the row; empty if there is none.
  QRectF replayButton() const;

  /// Of the animation, in milliseconds; 0 for a chart that stands still.
  double duration() const;

  /// Whether the animation is in the part that is not to be begun again.
  bool isRunning() const;

  /// Whether the chart has points that can be marked.
  bool hasPoints() const;

  /// The chart in words, and the point that is marked.
  QString words() const;
  QString markedWords() const;

  /// Marks the point nearest to a place in the row, or none.
  Q_INVOKABLE void markAt(QPointF place);
  Q_INVOKABLE void unmark();

  /// Marks the next point in the series that is marked, or the nearest one in the next series: on by 1 or
  /// back by -1. Without a mark the first point. False if there is none.
  Q_INVOKABLE bool markNextPoint(int way);
  Q_INVOKABLE bool markNextSeries(int way);

  void paint(QPainter* painter) override;

 signals:
  void chartsChanged();
  void progressChanged();
  void scrollChanged();
  void pictureChanged();
  void markChanged();

 protected:
  void componentComplete() override;
  void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
  void itemChange(ItemChange change, const ItemChangeData& value) override;
  QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData* data) override;

 private:
  void makePicture();
  void setMark(const std::optional<ChartMark>& mark);
  const UnitCircleChartView* circle() const;
  const CoordinatePicture* coordinates() const { return picture_ ? picture_->coordinates() : nullptr; }

  ChartRow charts_;
  ChartMoment moment_{.progress = 0};
  std::shared_ptr<const ChartView> view_;
  std::shared_ptr<const ChartPicture> picture_;

  // What is drawn, in a thread of its own perhaps: taken over while the thread of the interface waits.
  std::shared_ptr<const ChartPicture> shownPicture_;
  ChartMoment shownMoment_;
};

}  // namespace tavi
