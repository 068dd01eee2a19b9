#include "charts/view/presentation_picture.h"

#include <QPainter>
#include <algorithm>

#include "charts/view/canvas.h"
#include "typeset/math_painter.h"

namespace tavi {

void paintPresentation(QPainter& painter, const DistributionFunctionPresentationView& view, QSizeF size,
                       const ChartPalette& palette) {
  // Three lines of this size stand as high as the brace.
  constexpr double textSize = 16;
  constexpr double pitch = 18;
  constexpr double axisHeight = 0.25;  // of the em: where the middle of a line is over its baseline
  const typeset::Ink ink{.text = palette.label, .background = palette.background};
  const typeset::Layout name = setFormula(view.labelLeft, textSize);
  const typeset::Layout brace = setFormula(view.labelMid, DistributionFunctionPresentationView::braceSize);
  double valueWidth = 0;
  double rangeWidth = 0;
  for (const std::string& value : view.values)
    valueWidth = std::max(valueWidth, setFormula(value, textSize).width);
  for (const std::string& range : view.ranges)
    rangeWidth = std::max(rangeWidth, setFormula(range, textSize).width);

  const double middle = size.height() / 2;
  const double gap = textSize / 4;
  double left = (size.width() - name.width - brace.width - valueWidth - rangeWidth - 2 * gap) / 2;
  const auto draw = [&](const typeset::Layout& layout, double baseline) {
    typeset::MathPicture(layout).paint(painter, {left, baseline}, ink);
  };
  draw(name, middle + axisHeight * textSize);
  left += name.width + gap;
  draw(brace, middle + (brace.height - brace.depth) / 2);
  left += brace.width + gap;
  for (const auto* column : {&view.values, &view.ranges}) {
    double baseline = middle - pitch + axisHeight * textSize;
    for (const std::string& line : *column) {
      draw(setFormula(line, textSize), baseline);
      baseline += pitch;
    }
    left += valueWidth;
  }
}

}  // namespace tavi
