#include "solution/rows/step_row.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <utility>
#include <vector>

#include "appearance/interface_fonts.h"
#include "appearance/text_drawing.h"
#include "output/localized_string.h"
#include "solution/display_latex.h"
#include "solution/rows/row_measures.h"
#include "typeset/bundled_font.h"
#include "typeset/line_breaks.h"
#include "typeset/math_painter.h"
#include "typeset/typeset.h"

namespace tavi {

namespace {

constexpr const RowMeasures& measures = rowMeasures;
constexpr double lineGap = 8;  // between the lines of a parted formula

typeset::MathFont& mathFont() {
  static typeset::MathFont font = typeset::MathFont::open(typeset::bundledMathFont()).value();
  return font;
}

class StepRowPainter : public RowPainter {
 public:
  StepRowPainter(SolutionStepTableViewCell row, double leastHeight, const RowTarget& target)
      : row_(std::move(row)), leastHeight_(leastHeight) {
    if (row_.latex.isEmpty()) return;
    const double formulaSize = RowMeasures::formulaSize(target.viewWidth);
    const typeset::Layout layout = typeset::typeset(row_.latex.toStdString(), mathFont(), formulaSize);
    formula_ = typeset::MathPicture(layout);
    lines_ = typeset::parted(layout, target.widestLine - 2 * measures.edge);
    ascent_ = layout.height;
    lineHeight_ = layout.height + layout.depth;
  }

  double width() const override {
    double widest = 0;
    for (const typeset::LinePart& line : lines_) widest = std::max(widest, line.right - line.left);
    return widest + 2 * measures.edge;
  }

  double height(double width) const override {
    const double content = std::max(formulaHeight(), messageText(width).height());
    return std::max(leastHeight_, headHeight(width) + content + measures.padding);
  }

  void paint(QPainter& painter, QSizeF size, const RowPalette& palette) const override {
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    paintCard(painter, size, palette);
    painter.setPen(palette.text);
    const TextBlock title = titleText(size.width());
    const bool isTitleAlone = row_.message.isEmpty() && row_.latex.isEmpty();
    title.draw(painter,
               {measures.edge, isTitleAlone ? (size.height() - title.height()) / 2 : measures.padding});
    const double top = headHeight(size.width());
    const TextBlock message = messageText(size.width());
    message.draw(painter,
                 {measures.messageIndent, (top + size.height() - measures.padding - message.height()) / 2});
    paintFormula(painter, (top + size.height() - measures.gap - formulaHeight()) / 2, palette);
  }

 private:
  TextBlock titleText(double width) const { return {row_.title, row_.titleFont, width - 2 * measures.edge}; }
  TextBlock messageText(double width) const {
    return {row_.message, InterfaceFont::book(measures.messageSize),
            width - measures.messageIndent - measures.edge};
  }
  double headHeight(double width) const {
    return row_.title.isEmpty() ? measures.gap : measures.padding + titleText(width).height() + measures.gap;
  }
  double formulaHeight() const {
    const auto lines = static_cast<double>(lines_.size());
    return lines_.empty() ? 0 : lines * lineHeight_ + (lines - 1) * lineGap;
  }

  void paintCard(QPainter& painter, QSizeF size, const RowPalette& palette) const {
    QPainterPath card;
    card.setFillRule(Qt::WindingFill);
    card.addRoundedRect(QRectF({}, size), measures.corner, measures.corner);
    if (!row_.isFirst) card.addRect(0, 0, size.width(), measures.corner);
    if (!row_.isLast) card.addRect(0, size.height() - measures.corner, size.width(), measures.corner);
    painter.fillPath(card, palette.card);
    if (!row_.title.isEmpty() && !row_.isFirst)
      painter.fillRect(QRectF(measures.edge, 0, size.width() - 2 * measures.edge, measures.hairline),
                       palette.hairline);
    if (row_.isResult) {
      const QRectF place(0, measures.padding, measures.barWidth, size.height() - 2 * measures.padding);
      QPainterPath bar;
      bar.addRoundedRect(place, measures.barWidth / 2, measures.barWidth / 2);
      painter.fillPath(bar, palette.accent);
    }
  }

  void paintFormula(QPainter& painter, double y, const RowPalette& palette) const {
    const typeset::Ink ink{.text = palette.text, .background = palette.card};
    for (const typeset::LinePart& line : lines_) {
      painter.save();
      // Letters may overhang the whole line, but not the place where it is parted.
      const double left = line.left == 0 ? -measures.edge : 0;
      const double right = line.right - line.left + (&line == &lines_.back() ? measures.edge : 0);
      painter.setClipRect(QRectF(measures.edge + left, y - lineGap / 2, right - left, lineHeight_ + lineGap));
      formula_.paint(painter, {measures.edge - line.left, y + ascent_}, ink, line.left + left,
                     line.left + right);
      painter.restore();
      y += lineHeight_ + lineGap;
    }
  }

  SolutionStepTableViewCell row_;
  double leastHeight_;
  typeset::MathPicture formula_;
  std::vector<typeset::LinePart> lines_;
  double ascent_ = 0;      // of the formula
  double lineHeight_ = 0;  // of the formula, 0 without one
};

}  // namespace

void SolutionStepTableViewCell::setStepTitle(const QString& stepTitle) {
  constexpr QLatin1StringView boldMark{"#bold"};
  title = stepTitle;
  titleFont = InterfaceFont::book(measures.titleSize);
  if (stepTitle.endsWith(boldMark)) {
    title.remove(boldMark);
    titleFont = InterfaceFont::heavy(measures.titleSize);
  }
  isResult = title == QString::fromStdString(LocalizedString::result.text());
}

void SolutionStepTableViewCell::setStepContent(const SolutionStep& step) {
  message.clear();
  latex.clear();
  if (step.messageString)
    message = QString::fromStdString(*step.messageString);
  else if (step.latexString)
    latex = QString::fromStdString(displayLatex(*step.latexString));
}

std::unique_ptr<RowPainter> makePainter(const SolutionStepTableViewCell& row, double leastHeight,
                                        const RowTarget& target) {
  return std::make_unique<StepRowPainter>(row, leastHeight, target);
}

}  // namespace tavi
