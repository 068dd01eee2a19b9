#include "solution_sheet.h"

#include <algorithm>

#include <QtGui/QFontDatabase>
#include <QtGui/QFontMetricsF>
#include <QtGui/QPainter>

#include "number/fatal_stop.h"
#include "output/localized_string.h"
#include "solution/display_latex.h"
#include "typeset/bundled_font.h"
#include "typeset/typeset.h"

namespace tavi::cli {
namespace {

constexpr double pageMargin = 12;
constexpr double cardRadius = 8;
constexpr double edge = 16;  // from the card to titles and formulas
constexpr double rowPadding = 12;
constexpr double titleGap = 8;  // from a title to its formula
constexpr double hairlineWidth = 1;
constexpr double resultBarWidth = 4;
constexpr double formulaSize = 20;
constexpr int titleSize = 14;
const QString boldMark = QStringLiteral("#bold");

QFont bundledFont(const QString& file) {
  const int id = QFontDatabase::addApplicationFont(":/fonts/" + file);
  if (id < 0) fatalStop("a bundled font cannot be read");
  QFont font(QFontDatabase::applicationFontFamilies(id).constFirst());
  font.setStyleName(file.section('-', 1).section('.', 0, 0));
  font.setPixelSize(titleSize);
  return font;
}

}  // namespace

SheetColors lightSheet() {
  return {.page = QColor(0xec, 0xef, 0xf1),
          .card = Qt::white,
          .text = Qt::black,
          .hairline = QColor(0xd1, 0xd1, 0xd6),
          .accent = QColor(0xed, 0x40, 0x7a)};
}

SheetColors darkSheet() {
  return {.page = QColor(0x12, 0x12, 0x12),
          .card = Qt::black,
          .text = Qt::white,
          .hairline = QColor(0x3a, 0x3a, 0x3c),
          .accent = QColor(0xa6, 0x2d, 0x55)};
}

SolutionSheet::SolutionSheet(const SolutionSteps& steps, const SheetColors& colors) : colors_(colors) {
  auto font = typeset::MathFont::open(typeset::bundledMathFont());
  if (!font) fatalStop("the bundled font has no mathematics");
  const QFont regular = bundledFont(QStringLiteral("Lato-Regular.ttf"));
  const QFont heavy = bundledFont(QStringLiteral("Lato-Heavy.ttf"));
  double width = 0;
  double y = pageMargin;
  for (const SolutionStep& step : steps) {
    Row row;
    row.top = y;
    QString title = QString::fromStdString(step.title.value_or(""));
    const bool isContinuation = title.isEmpty() && !rows_.empty();
    row.isResult = isContinuation ? rows_.back().isResult : step.title == LocalizedString::result.text();
    row.hasHairline = !title.isEmpty() && !rows_.empty();
    y += rowPadding;
    if (!title.isEmpty()) {
      const bool isBold = title.endsWith(boldMark);
      if (isBold) title.remove(boldMark);
      const QFont& titleFont = isBold ? heavy : regular;
      const QFontMetricsF metrics(titleFont);
      row.title.addText(0, y + metrics.ascent(), titleFont, title);
      y += metrics.height() + titleGap;
      width = std::max(width, metrics.horizontalAdvance(title));
    }
    const typeset::Layout layout =
        typeset::typeset(displayLatex(step.latexString.value_or("")), *font, formulaSize);
    row.formula = typeset::MathPicture(layout);
    row.formulaBaseline = y + layout.height;
    width = std::max(width, layout.width);
    y += layout.height + layout.depth + rowPadding;
    row.bottom = y;
    rows_.push_back(std::move(row));
  }
  size_ = {2 * (pageMargin + edge) + width, y + pageMargin};
}

void SolutionSheet::paint(QPainter& painter) const {
  const QRectF sheet({0, 0}, size_);
  const QRectF card = sheet.marginsRemoved({pageMargin, pageMargin, pageMargin, pageMargin});
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(sheet, colors_.page);
  QPainterPath cardOutline;
  cardOutline.addRoundedRect(card, cardRadius, cardRadius);
  painter.fillPath(cardOutline, colors_.card);
  painter.setClipPath(cardOutline);
  const typeset::Ink ink{.text = colors_.text, .background = colors_.card};
  const double left = card.left() + edge;
  for (const Row& row : rows_) {
    if (row.hasHairline) {
      painter.fillRect(QRectF(left, row.top, card.width() - edge, hairlineWidth), colors_.hairline);
    }
    if (row.isResult) {
      painter.fillRect(QRectF(card.left(), row.top + hairlineWidth, resultBarWidth, row.bottom - row.top),
                       colors_.accent);
    }
    painter.fillPath(row.title.translated(left, 0), colors_.text);
    row.formula.paint(painter, {left, row.formulaBaseline}, ink);
  }
}

}  // namespace tavi::cli
