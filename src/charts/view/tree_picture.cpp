#include "charts/view/tree_picture.h"

#include <QPainter>
#include <QRectF>
#include <algorithm>
#include <array>

#include "appearance/interface_fonts.h"
#include "appearance/text_drawing.h"
#include "charts/view/canvas.h"
#include "charts/view/series_shape.h"

namespace tavi {

namespace {

constexpr double lineWidth = 2;
constexpr double branchHeight = 20;
constexpr double probabilityTop = 80;
constexpr double probabilityOffset = 0.125;  // of the tree's width, from its middle
constexpr double leafTilt = -40;             // degrees, against the clock
constexpr double grayOpacity = 0.3;
constexpr int textSize = 12;
constexpr int titleSize = 18;
constexpr QPointF titlePlace(20, 12);
constexpr double titleGroundOpacity = 0.9;
// What a node's circle and a leaf's text, at their longest, reach beyond the node's place.
constexpr double overhang = 250;

class TreePainter {
 public:
  TreePainter(QPainter& painter, const TreeChartView& tree, QSizeF size, QPointF scroll,
              const ChartPalette& palette)
      : painter_(painter), tree_(tree), sight_({}, size), scroll_(scroll), palette_(palette) {}

  void paint() {
    paintProbability(tree_.probabilitySuccess, 1);
    paintProbability(tree_.probabilityFailure, -1);
    visitNodes(tree_, [this](const PlacedNode& place) {
      const QPointF top = QPointF(place.x, place.y) - scroll_;
      const double reach = place.width / 2 + overhang;
      const bool isInSight = top.x() + reach > sight_.left() && top.x() - reach < sight_.right() &&
                             top.y() - branchHeight < sight_.bottom();
      if (isInSight) paintNode(place, top);
      return isInSight;
    });
  }

 private:
  // On either side of the first fork.
  void paintProbability(const std::string& probability, int side) {
    const QString text = textOf(probability);
    const double left =
        tree_.width * (0.5 + side * probabilityOffset) - (side < 0 ? textWidth(text, font_) : 0);
    drawText(painter_, text, font_, palette_.label, QPointF(left, probabilityTop) - scroll_);
  }

  void paintNode(const PlacedNode& place, QPointF top) {
    const TreeNode& node = place.node;
    const QColor& color = node.isHighlighted() ? palette_.accent : gray_;
    painter_.setPen(QPen(color, lineWidth));
    if (!node.value().empty()) {
      const std::array<QPointF, 2> branch{QPointF(place.parentX - scroll_.x(), top.y() - branchHeight), top};
      for (const QPolygonF& part :
           clipped(branch, sight_.adjusted(-lineWidth, -lineWidth, lineWidth, lineWidth)))
        painter_.drawPolyline(part);
    }
    const QPointF middle = top + QPointF(0, treeNodeDiameter / 2);
    if (!sight_.adjusted(-overhang, -overhang, overhang, overhang).contains(middle)) return;
    painter_.drawEllipse(middle, treeNodeDiameter / 2, treeNodeDiameter / 2);
    if (!node.value().empty()) {
      painter_.setPen(palette_.label);
      (node.value() == "1" ? success_ : failure_)
          .draw(painter_, middle - QPointF(digitWidth_ / 2, textHeight_ / 2));
    }
    if (node.isLeaf()) paintLeaf(node, top, color);
  }

  void paintLeaf(const TreeNode& leaf, QPointF top, const QColor& color) {
    const QString text = textOf(leafText(tree_, leaf));
    const double width = textWidth(text, font_);
    const auto events = static_cast<double>(leaf.chainOfEvents().size());
    painter_.save();
    painter_.translate(top.x() - 0.86 * width + 0.5 * width,
                       top.y() + treeNodeDiameter + 2.2 * events + 18 + 0.5 * textHeight_);
    painter_.rotate(leafTilt);
    drawText(painter_, text, font_, color, {-width / 2, -textHeight_ / 2});
    painter_.restore();
  }

  QPainter& painter_;
  const TreeChartView& tree_;
  QRectF sight_;
  QPointF scroll_;
  const ChartPalette& palette_;
  QColor gray_ = withOpacity(palette_.gray, grayOpacity);
  QFont font_ = InterfaceFont::book(textSize);
  double textHeight_ = textHeight(font_);
  double digitWidth_ = textWidth(QStringLiteral("0"), font_);  // as wide as a 1
  TextBlock failure_{QStringLiteral("0"), font_, textHeight_};
  TextBlock success_{QStringLiteral("1"), font_, textHeight_};
};

}  // namespace

void paintTree(QPainter& painter, const TreeChartView& tree, QSizeF size, QPointF scroll,
               const ChartPalette& palette) {
  painter.save();
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  painter.setClipRect(QRectF({}, size), Qt::IntersectClip);
  TreePainter(painter, tree, size, scroll, palette).paint();
  const QFont font = InterfaceFont::book(titleSize);
  const QString title = shortened(textOf(tree.chartTitle), font, size.width() - 2 * titlePlace.x());
  if (!title.isEmpty()) {
    painter.fillRect(QRectF(0, 0, size.width(), titlePlace.y() + textHeight(font)),
                     withOpacity(palette.background, titleGroundOpacity));
    drawText(painter, title, font, palette.label, titlePlace);
  }
  painter.restore();
}

QPointF startOfTree(const TreeChartView& tree, QSizeF size) {
  return {(tree.width - size.width()) / 2, 0};
}

}  // namespace tavi
