#pragma once

#include <QColor>
#include <QPainter>
#include <QQuickPaintedItem>

#include <QtQml/qqmlregistration.h>

namespace tavi {

/// Draws a radical sign that fills the item: a hook at the left, then a line along the upper edge. Lengths in
/// device-independent pixels.
class RadicalItem : public QQuickPaintedItem {
  Q_OBJECT
  QML_NAMED_ELEMENT(Radical)
  Q_PROPERTY(QColor color MEMBER color_ NOTIFY changed)
  Q_PROPERTY(double hookWidth MEMBER hookWidth_ NOTIFY changed)
  Q_PROPERTY(double hookHeight MEMBER hookHeight_ NOTIFY changed)
  Q_PROPERTY(double lineWidth MEMBER lineWidth_ NOTIFY changed)

 public:
  explicit RadicalItem(QQuickItem* parent = nullptr);

  void paint(QPainter* painter) override;

 signals:
  void changed();

 private:
  QColor color_ = Qt::black;
  double hookWidth_ = 24;   ///< From the left end to where the line begins.
  double hookHeight_ = 24;  ///< From the lower end to the top of the hook.
  double lineWidth_ = 2;    ///< The falling stroke is twice as thick.
};

}  // namespace tavi
