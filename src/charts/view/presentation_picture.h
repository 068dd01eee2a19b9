#pragma once

#include <QSizeF>

#include "charts/distribution_function_presentation.h"
#include "charts/view/chart_palette.h"

class QPainter;

namespace tavi {

/// Draws a distribution function as a formula into the middle of a size, in device-independent pixels.
void paintPresentation(QPainter& painter, const DistributionFunctionPresentationView& view, QSizeF size,
                       const ChartPalette& palette);

}  // namespace tavi
