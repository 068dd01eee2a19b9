#include "solution/solution_step_cell.h"

#include "appearance/interface_fonts.h"
#include "output/localized_string.h"
#include "solution/display_latex.h"

namespace tavi {

void SolutionStepTableViewCell::setStepTitle(const QString& title) {
  constexpr QLatin1StringView boldMark{"#bold"};
  title_ = title;
  titleFont_ = InterfaceFont::book(14);
  if (title.endsWith(boldMark)) {
    title_.remove(boldMark);
    titleFont_ = InterfaceFont::heavy(14);
  }
  emit contentChanged();
}

void SolutionStepTableViewCell::setStepContent(const SolutionStep& step) {
  message_.clear();
  latex_.clear();
  if (step.messageString)
    message_ = QString::fromStdString(*step.messageString);
  else if (step.latexString)
    latex_ = QString::fromStdString(displayLatex(*step.latexString));
  emit contentChanged();
}

bool SolutionStepTableViewCell::isResult() const {
  return title_ == QString::fromStdString(LocalizedString::result.text());
}

}  // namespace tavi
