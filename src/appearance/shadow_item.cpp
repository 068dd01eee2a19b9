#include "appearance/shadow_item.h"

#include <QImage>
#include <QList>
#include <QPainter>
#include <cmath>
#include <numeric>

namespace tavi {

namespace {

/// Averages each alpha over its neighbours within the radius along a line of pixels.
void blurLine(uchar* first, qsizetype stride, int count, int radius, QList<int>& line) {
  const int width = 2 * radius + 1;
  line.fill(0, count + width);
  for (int i = 0; i < count; ++i) line[i + radius] = first[i * stride];
  int sum = std::accumulate(line.cbegin(), line.cbegin() + width, 0);
  for (int i = 0; i < count; ++i) {
    first[i * stride] = static_cast<uchar>(sum / width);
    sum += line[i + width] - line[i];
  }
}

/// Three box blurs come close to a Gaussian one.
void blur(QImage& mask, int radius) {
  if (radius < 1) return;
  QList<int> line;
  for (int pass = 0; pass < 3; ++pass) {
    for (int y = 0; y < mask.height(); ++y) blurLine(mask.scanLine(y), 1, mask.width(), radius, line);
    for (int x = 0; x < mask.width(); ++x)
      blurLine(mask.bits() + x, mask.bytesPerLine(), mask.height(), radius, line);
  }
}

}  // namespace

ShadowItem::ShadowItem(QQuickItem* parent) : QQuickPaintedItem(parent) {
  connect(this, &ShadowItem::changed, this, [this] { update(); });
}

void ShadowItem::setShadow(const LayerShadow& shadow) {
  if (shadow_ == shadow) return;
  shadow_ = shadow;
  emit changed();
}

void ShadowItem::setCornerRadius(double radius) {
  if (qFuzzyCompare(cornerRadius_, radius)) return;
  cornerRadius_ = radius;
  emit changed();
}

double ShadowItem::extent() const {
  const double offset = std::max(std::abs(shadow_.offset.x()), std::abs(shadow_.offset.y()));
  return std::ceil(3 * shadow_.radius + offset);
}

void ShadowItem::paint(QPainter* painter) {
  const double ratio = painter->device()->devicePixelRatio();
  const double inset = extent();
  const QRectF shape =
      QRectF(0, 0, width(), height()).adjusted(inset, inset, -inset, -inset).translated(shadow_.offset);

  QImage mask((size() * ratio).toSize(), QImage::Format_Alpha8);
  if (shadow_.opacity <= 0 || mask.isNull() || shape.isEmpty()) return;
  mask.fill(0);
  {
    QPainter maskPainter(&mask);
    maskPainter.setRenderHint(QPainter::Antialiasing);
    maskPainter.scale(ratio, ratio);
    maskPainter.setPen(Qt::NoPen);
    maskPainter.setBrush(Qt::black);
    maskPainter.drawRoundedRect(shape, cornerRadius_, cornerRadius_);
  }
  blur(mask, static_cast<int>(std::lround(shadow_.radius * ratio)));

  QImage colored(mask.size(), QImage::Format_ARGB32_Premultiplied);
  QColor color = shadow_.color;
  color.setAlphaF(static_cast<float>(color.alphaF() * shadow_.opacity));
  colored.fill(color);
  {
    QPainter composer(&colored);
    composer.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    composer.drawImage(0, 0, mask);
  }
  painter->drawImage(QRectF(0, 0, width(), height()), colored);
}

}  // namespace tavi
