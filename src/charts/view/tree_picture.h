#pragma once

#include <QPointF>
#include <QSizeF>

#include "charts/tree_chart.h"
#include "charts/view/chart_palette.h"

class QPainter;

namespace tavi {

/// Draws what a view of that size shows of a tree that is scrolled there, under its title, which stays.
/// Lengths are device-independent pixels.
void paintTree(QPainter& painter, const TreeChartView& tree, QSizeF size, QPointF scroll,
               const ChartPalette& palette);

/// Where a tree is scrolled to at first: its root in the middle of the view.
QPointF startOfTree(const TreeChartView& tree, QSizeF size);

}  // namespace tavi
