#pragma once

#include <QQuickPaintedItem>
#include <QString>

namespace tavi {

/// A drawing of the resources by its name, as large as it fits and in the colours of the appearance in force.
/// Without such a drawing the item stays empty.
class PictureItem : public QQuickPaintedItem {
  Q_OBJECT
  QML_NAMED_ELEMENT(Picture)
  Q_PROPERTY(QString name READ name WRITE setName NOTIFY nameChanged)
  /// The drawing's own size in device-independent pixels; empty without a drawing.
  Q_PROPERTY(QSizeF naturalSize READ naturalSize NOTIFY nameChanged)

 public:
  explicit PictureItem(QQuickItem* parent = nullptr);

  QString name() const { return name_; }
  void setName(const QString& name);
  QSizeF naturalSize() const { return naturalSize_; }

  void paint(QPainter* painter) override;

 signals:
  void nameChanged();

 private:
  QString name_;
  QSizeF naturalSize_;
};

}  // namespace tavi
