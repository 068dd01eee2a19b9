#include "solution/solution_step_cell.h"

#include <QPainter>

#include "appearance/interface_fonts.h"
#include "appearance/theme.h"
#include "output/localized_string.h"
#include "solution/display_latex.h"

namespace tavi {

void SolutionStepTableViewCell::setPlace(bool isFirst, bool isLast) {
  row_.isFirst = isFirst;
  row_.isLast = isLast;
  change();
}

void SolutionStepTableViewCell::setStepTitle(const QString& title) {
  constexpr QLatin1StringView boldMark{"#bold"};
  row_.title = title;
  row_.titleFont = InterfaceFont::book(14);
  if (title.endsWith(boldMark)) {
    row_.title.remove(boldMark);
    row_.titleFont = InterfaceFont::heavy(14);
  }
  row_.isResult = row_.title == QString::fromStdString(LocalizedString::result.text());
  change();
}

void SolutionStepTableViewCell::setStepContent(const SolutionStep& step) {
  row_.message.clear();
  row_.latex.clear();
  if (step.messageString)
    row_.message = QString::fromStdString(*step.messageString);
  else if (step.latexString)
    row_.latex = QString::fromStdString(displayLatex(*step.latexString));
  change();
}

double SolutionStepTableViewCell::formulaSizeFor(double viewWidth) {
  return viewWidth >= Theme().tabletWidth() ? 24 : 20;
}

void SolutionStepTableViewCell::setFormulaSize(double size) {
  if (size == row_.formulaSize) return;
  row_.formulaSize = size;
  change();
}

QCoro::Task<QImage> SolutionStepTableViewCell::screenshot(double scale) {
  QImage image((size() * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.scale(scale, scale);
  picture().paint(painter, size());
  co_return image;
}

void SolutionStepTableViewCell::change() {
  picture_.reset();
  emit contentChanged();
}

StepRowPicture& SolutionStepTableViewCell::picture() {
  if (!picture_) picture_.emplace(row_);
  return *picture_;
}

}  // namespace tavi
