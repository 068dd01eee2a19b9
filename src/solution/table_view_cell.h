#pragma once

#include <QColor>
#include <QCoroTask>
#include <QImage>
#include <QQuickItem>

namespace tavi {

/// One row of a table, on the screen or for a picture of the table. Lengths are device-independent pixels.
class TableViewCell : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("The base of the cells")

 public:
  explicit TableViewCell(QQuickItem* parent = nullptr);

  /// Transparent at first.
  void setBackgroundColor(const QColor& color);
  QColor backgroundColor() const { return backgroundColor_; }

  /// The width at which nothing of the row is cut; 0 where any will do.
  virtual double widthForPicture() { return 0; }

  /// The height of the row in a picture, for a row that is `rowHeight` high on the screen.
  virtual double heightForPicture(double /*width*/, double rowHeight) { return rowHeight; }

  /// The row as a picture of its present size, `scale` pixels to a device-independent one. Null where it
  /// cannot be had.
  virtual QCoro::Task<QImage> screenshot(double scale);

 protected:
  QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData*) override;

 private:
  QColor backgroundColor_ = Qt::transparent;
};

}  // namespace tavi
