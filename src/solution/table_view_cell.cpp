#include "solution/table_view_cell.h"

#include <QQuickWindow>
#include <QSGRectangleNode>

#include "shell/frame/screenshot.h"

namespace tavi {

TableViewCell::TableViewCell(QQuickItem* parent) : QQuickItem(parent) {
  setFlag(ItemHasContents);
}

void TableViewCell::setBackgroundColor(const QColor& color) {
  backgroundColor_ = color;
  update();
}

QCoro::Task<QImage> TableViewCell::screenshot(double scale) {
  return tavi::screenshot(*this, scale);
}

QSGNode* TableViewCell::updatePaintNode(QSGNode* node, UpdatePaintNodeData*) {
  auto* rectangle = static_cast<QSGRectangleNode*>(node);
  if (!rectangle) rectangle = window()->createRectangleNode();
  rectangle->setColor(backgroundColor_);
  rectangle->setRect(boundingRect());
  return rectangle;
}

}  // namespace tavi
