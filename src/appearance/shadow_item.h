#pragma once

#include <QQuickPaintedItem>

#include "appearance/view.h"

namespace tavi {

/// Paints the shadow of a rounded rectangle: put behind an item and given its size, it reaches over the
/// item's edges as far as the shadow does. It paints with both renderers, unlike layer effects.
///
///     Shadow { target: button; shadow: button.View.shadow; cornerRadius: 8 }
class ShadowItem : public QQuickPaintedItem {
  Q_OBJECT
  QML_NAMED_ELEMENT(Shadow)
  Q_PROPERTY(tavi::LayerShadow shadow READ shadow WRITE setShadow NOTIFY changed)
  Q_PROPERTY(double cornerRadius READ cornerRadius WRITE setCornerRadius NOTIFY changed)
  /// How far the shadow reaches over each edge: the negative margin to anchor with.
  Q_PROPERTY(double extent READ extent NOTIFY changed)

 public:
  explicit ShadowItem(QQuickItem* parent = nullptr);

  LayerShadow shadow() const { return shadow_; }
  void setShadow(const LayerShadow& shadow);
  double cornerRadius() const { return cornerRadius_; }
  void setCornerRadius(double radius);
  double extent() const;

  void paint(QPainter* painter) override;

 signals:
  void changed();

 private:
  LayerShadow shadow_;
  double cornerRadius_ = 0;
};

}  // namespace tavi
