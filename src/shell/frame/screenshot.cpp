#include "shell/frame/screenshot.h"

#include <QCoroSignal>
#include <QPainter>
#include <QQuickItemGrabResult>
#include <chrono>

namespace tavi {

QCoro::Task<QImage> screenshotForCroppingRect(QQuickItem& view, QRectF rectangle, double scale) {
  // A window that is not drawn any more, such as one just minimised, never answers.
  constexpr std::chrono::seconds patience{3};
  const QSize size = (rectangle.size() * scale).toSize();
  if (size.isEmpty()) co_return {};
  const auto grab = view.grabToImage((view.size() * scale).toSize());
  if (!grab) co_return {};
  if (!co_await qCoro(grab.get(), &QQuickItemGrabResult::ready, patience)) co_return {};

  QImage picture(size, QImage::Format_ARGB32_Premultiplied);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(QRectF({}, view.size() * scale), grab->image());
  co_return picture;
}

QCoro::Task<QImage> screenshot(QQuickItem& view, double scale) {
  return screenshotForCroppingRect(view, view.boundingRect(), scale);
}

}  // namespace tavi
