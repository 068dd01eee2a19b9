#include "solution/step_row_picture.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <utility>

#include "appearance/interface_colors.h"
#include "appearance/interface_fonts.h"
#include "appearance/theme.h"
#include "typeset/bundled_font.h"
#include "typeset/typeset.h"

namespace tavi {

namespace {

// The measures of SolutionStepCell.qml.
constexpr double edge = 16;
constexpr double padding = 12;
constexpr double gap = 8;  // between a title and its formula, and over a formula without a title
constexpr double messageIndent = 28;
constexpr double corner = 12;
constexpr double barWidth = 4;
constexpr int messageSize = 16;
constexpr double lineGap = 8;  // between the lines of a parted formula
// Two thousand factors and more; a picture of twice as many pixels is as wide as viewers open.
constexpr double widestLine = 8000;
constexpr double unlimited = 1e6;

typeset::MathFont& mathFont() {
  static typeset::MathFont font = typeset::MathFont::open(typeset::bundledMathFont()).value();
  return font;
}

double wrappedHeight(const QString& text, const QFont& font, double width) {
  return text.isEmpty() ? 0
                        : QFontMetricsF(font)
                              .boundingRect(QRectF(0, 0, width, unlimited), Qt::TextWordWrap, text)
                              .height();
}

}  // namespace

StepRowPicture::StepRowPicture(StepRow row) : row_(std::move(row)) {
  if (row_.latex.isEmpty()) return;
  const typeset::Layout layout = typeset::typeset(row_.latex.toStdString(), mathFont(), row_.formulaSize);
  formula_ = typeset::MathPicture(layout);
  lines_ = typeset::parted(layout, widestLine);
  ascent_ = layout.height;
  lineHeight_ = layout.height + layout.depth;
}

double StepRowPicture::width() const {
  double widest = 0;
  for (const typeset::LinePart& line : lines_) widest = std::max(widest, line.right - line.left);
  return widest + 2 * edge;
}

double StepRowPicture::height(double width, double rowHeight) const {
  const double content = std::max(formulaHeight(), messageHeight(width));
  return std::max(rowHeight, headHeight(width) + content + padding);
}

double StepRowPicture::titleHeight(double width) const {
  return wrappedHeight(row_.title, row_.titleFont, width - 2 * edge);
}

double StepRowPicture::headHeight(double width) const {
  return row_.title.isEmpty() ? gap : padding + titleHeight(width) + gap;
}

double StepRowPicture::messageHeight(double width) const {
  return wrappedHeight(row_.message, InterfaceFont::book(messageSize), width - messageIndent - edge);
}

double StepRowPicture::formulaHeight() const {
  const auto lines = static_cast<double>(lines_.size());
  return lines_.empty() ? 0 : lines * lineHeight_ + (lines - 1) * lineGap;
}

void StepRowPicture::paint(QPainter& painter, QSizeF size) const {
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  paintCard(painter, size);
  painter.setPen(InterfaceColor::label());
  painter.setFont(row_.titleFont);
  const double top = headHeight(size.width());
  const bool isTitleAlone = row_.message.isEmpty() && row_.latex.isEmpty();
  const double titleTop = isTitleAlone ? (size.height() - titleHeight(size.width())) / 2 : padding;
  painter.drawText(QRectF(edge, titleTop, size.width() - 2 * edge, unlimited), Qt::TextWordWrap, row_.title);
  painter.setFont(InterfaceFont::book(messageSize));
  painter.drawText(
      QRectF(messageIndent, top, size.width() - messageIndent - edge, size.height() - top - padding),
      Qt::TextWordWrap | Qt::AlignVCenter, row_.message);
  paintFormula(painter, top, size.height() - gap);
}

void StepRowPicture::paintCard(QPainter& painter, QSizeF size) const {
  QPainterPath card;
  card.setFillRule(Qt::WindingFill);
  card.addRoundedRect(QRectF({}, size), corner, corner);
  if (!row_.isFirst) card.addRect(0, 0, size.width(), corner);
  if (!row_.isLast) card.addRect(0, size.height() - corner, size.width(), corner);
  painter.fillPath(card, InterfaceColor::background());
  if (!row_.title.isEmpty() && !row_.isFirst)
    painter.fillRect(QRectF(edge, 0, size.width() - 2 * edge, 1), Theme().hairline());
  if (row_.isResult) {
    QPainterPath bar;
    bar.addRoundedRect(QRectF(0, padding, barWidth, size.height() - 2 * padding), barWidth / 2, barWidth / 2);
    painter.fillPath(bar, KeypadPalette::shared().pink);
  }
}

void StepRowPicture::paintFormula(QPainter& painter, double top, double bottom) const {
  const typeset::Ink ink{.text = InterfaceColor::label(), .background = InterfaceColor::background()};
  double y = (top + bottom - formulaHeight()) / 2;
  for (const typeset::LinePart& line : lines_) {
    painter.save();
    // Letters may overhang the whole line, but not the place where it is parted.
    const bool isStart = line.left == 0;
    const bool isEnd = &line == &lines_.back();
    const double left = isStart ? -edge : 0;
    const double right = line.right - line.left + (isEnd ? edge : 0);
    painter.setClipRect(QRectF(edge + left, y - lineGap / 2, right - left, lineHeight_ + lineGap));
    formula_.paint(painter, {edge - line.left, y + ascent_}, ink, line.left + left, line.left + right);
    painter.restore();
    y += lineHeight_ + lineGap;
  }
}

}  // namespace tavi
