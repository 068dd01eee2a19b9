#pragma once

#include <QByteArray>
#include <QRectF>
#include <QString>

class QPainter;

namespace tavi {

/// The drawing of that name from the resources, as SVG in the colours of the appearance in force; empty
/// without one. Drawings are made in the light appearance's colours, of which the dark one has its own.
QByteArray pictureNamed(const QString& name);

/// Its own size in device-independent pixels; empty without one.
QSizeF pictureSize(const QString& name);

/// Draws it as large as it fits into the frame, in the middle.
void paintPicture(QPainter& painter, const QString& name, const QRectF& frame);

}  // namespace tavi
