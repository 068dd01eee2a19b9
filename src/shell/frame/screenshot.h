#pragma once

#include <QCoroTask>
#include <QImage>
#include <QQuickItem>
#include <QRectF>

namespace tavi {

/// True while a solution is being pictured: what would move then shows its last state at once. Main thread
/// only.
inline bool isTakingScreenshot = false;

// No caller here: rows are painted. Further screens are promised both.
/// A picture of the view, of the size of the rectangle, from the view's upper left corner on: the rectangle's
/// own place does not count. `scale` pixels to a device-independent one. Null for an empty rectangle and for
/// a view that is in no visible window.
QCoro::Task<QImage> screenshotForCroppingRect(QQuickItem& view, QRectF rectangle, double scale);

/// A picture of the whole view.
QCoro::Task<QImage> screenshot(QQuickItem& view, double scale);

}  // namespace tavi
