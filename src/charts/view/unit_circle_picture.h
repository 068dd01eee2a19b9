#pragma once

#include <QRectF>
#include <QSizeF>

#include "charts/unit_circle_chart.h"
#include "charts/view/chart_palette.h"

class QPainter;

namespace tavi {

/// Draws the unit circle into a size, in device-independent pixels, as it stands at that progress.
void paintUnitCircle(QPainter& painter, const UnitCircleChartView& circle, QSizeF size, double progress,
                     const ChartPalette& palette);

/// Where its button to play it again is drawn.
QRectF replayButton(QSizeF size);

}  // namespace tavi
