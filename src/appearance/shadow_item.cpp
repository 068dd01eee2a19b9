#include "appearance/shadow_item.h"

#include <QImage>
#include <QList>
#include <QPainter>
#include <QQuickWindow>
#include <QSGImageNode>
#include <algorithm>
#include <cmath>
#include <deque>
#include <memory>
#include <numeric>
#include <utility>

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

/// How a picture comes from a smaller one along one axis: the two ends as they are, and between them a pixel
/// that is the same all the way.
class Axis {
 public:
  Axis(int length, int end)
      : end_(length > 2 * end + 1 ? end : 0), smallLength_(end_ > 0 ? 2 * end_ + 1 : length) {}

  int smallLength() const { return smallLength_; }
  int partCount() const { return end_ > 0 ? 3 : 1; }

  /// Start and length of a part, in the picture or in the smaller one.
  std::pair<int, int> part(int index, int length) const {
    if (end_ == 0) return {0, length};
    if (index == 1) return {end_, length - 2 * end_};
    return {index == 0 ? 0 : length - end_, end_};
  }

 private:
  int end_;  // 0 where the smaller one is as large as the picture
  int smallLength_;
};

struct Look {
  LayerShadow shadow;
  double cornerRadius;
  double ratio;  ///< Pixels of the picture for one of the screen's units.
  QSize size;    ///< Of the picture, in pixels.

  bool operator==(const Look&) const = default;
};

QImage drawn(const Look& look, double inset) {
  const QSizeF size = QSizeF(look.size) / look.ratio;
  const QRectF shape = QRectF({}, size).adjusted(inset, inset, -inset, -inset).translated(look.shadow.offset);
  if (look.shadow.opacity <= 0 || shape.isEmpty()) return {};

  QImage mask(look.size, QImage::Format_Alpha8);
  mask.fill(0);
  {
    QPainter painter(&mask);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(look.ratio, look.ratio);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawRoundedRect(shape, look.cornerRadius, look.cornerRadius);
  }
  blur(mask, static_cast<int>(std::lround(look.shadow.radius * look.ratio)));

  QImage colored(mask.size(), QImage::Format_ARGB32_Premultiplied);
  QColor color = look.shadow.color;
  color.setAlphaF(static_cast<float>(color.alphaF() * look.shadow.opacity));
  colored.fill(color);
  QPainter composer(&colored);
  composer.setCompositionMode(QPainter::CompositionMode_DestinationIn);
  composer.drawImage(0, 0, mask);
  return colored;
}

/// The whole picture of a shadow, pieced together from a smaller one.
QImage pieced(const Look& look, double extent) {
  const int end = static_cast<int>(std::ceil((2 * extent + look.cornerRadius) * look.ratio));
  const Axis across(look.size.width(), end);
  const Axis down(look.size.height(), end);
  const QSize smallSize(across.smallLength(), down.smallLength());
  QImage small = drawn({look.shadow, look.cornerRadius, look.ratio, smallSize}, extent);
  if (small.isNull() || smallSize == look.size) return small;

  QImage picture(look.size, small.format());
  QPainter painter(&picture);
  painter.setCompositionMode(QPainter::CompositionMode_Source);
  for (int row = 0; row < down.partCount(); ++row) {
    const auto [y, height] = down.part(row, look.size.height());
    const auto [sourceY, sourceHeight] = down.part(row, smallSize.height());
    for (int column = 0; column < across.partCount(); ++column) {
      const auto [x, width] = across.part(column, look.size.width());
      const auto [sourceX, sourceWidth] = across.part(column, smallSize.width());
      painter.drawImage(QRect(x, y, width, height), small,
                        QRect(sourceX, sourceY, sourceWidth, sourceHeight));
    }
  }
  return picture;
}

/// One of the last again where it looks the same: all keys of a keypad share the pixels of their shadow.
QImage shared(const Look& look, double extent) {
  static thread_local std::deque<std::pair<Look, QImage>> last;
  const auto known = std::ranges::find(last, look, &std::pair<Look, QImage>::first);
  if (known != last.end()) return known->second;
  if (last.size() == 4) last.pop_front();
  return last.emplace_back(look, pieced(look, extent)).second;
}

}  // namespace

ShadowItem::ShadowItem(QQuickItem* parent) : QQuickItem(parent) {
  setFlag(ItemHasContents);
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

QImage ShadowItem::picture(double ratio) const {
  const QSize pixels = (size() * ratio).toSize();
  return pixels.isEmpty() ? QImage() : shared({shadow_, cornerRadius_, ratio, pixels}, extent());
}

QSGNode* ShadowItem::updatePaintNode(QSGNode* previous, UpdatePaintNodeData* /*data*/) {
  const QImage image = picture(window()->effectiveDevicePixelRatio());
  std::unique_ptr<QSGImageNode> node(static_cast<QSGImageNode*>(previous));
  if (image.isNull()) return nullptr;
  if (!node) {
    node.reset(window()->createImageNode());
    node->setOwnsTexture(true);
  }
  node->setTexture(window()->createTextureFromImage(image));
  node->setRect(boundingRect());
  return node.release();
}

void ShadowItem::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
  QQuickItem::geometryChange(newGeometry, oldGeometry);
  if (newGeometry.size() != oldGeometry.size()) update();
}

void ShadowItem::itemChange(ItemChange change, const ItemChangeData& value) {
  QQuickItem::itemChange(change, value);
  if (change == ItemDevicePixelRatioHasChanged) update();
}

}  // namespace tavi
