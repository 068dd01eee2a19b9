#pragma once

#include <QImage>
#include <QQuickItem>

#include "appearance/view.h"

namespace tavi {

/// Paints the shadow of a rounded rectangle: put behind an item and given its size, it reaches over the
/// item's edges as far as the shadow does. It shows with both renderers, unlike layer effects.
///
///     Shadow { target: button; shadow: button.View.shadow; cornerRadius: 8 }
class ShadowItem : public QQuickItem {
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

  /// The shadow at so many pixels for a unit; null where nothing is to be seen.
  QImage picture(double ratio) const;

 signals:
  void changed();

 protected:
  QSGNode* updatePaintNode(QSGNode* previous, UpdatePaintNodeData* data) override;
  void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
  void itemChange(ItemChange change, const ItemChangeData& value) override;

 private:
  LayerShadow shadow_;
  double cornerRadius_ = 0;
};

}  // namespace tavi
