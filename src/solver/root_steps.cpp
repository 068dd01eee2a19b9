#include <cmath>

#include "number/fatal_stop.h"
#include "number/number_text.h"
#include "number/text.h"
#include "output/localized_string.h"
#include "output/tavi_color.h"
#include "solver/exponent_solver.h"

namespace tavi {

void TaviExponentSolver::calculateRoot() {
  const std::string task = this->task();
  std::vector<std::shared_ptr<Digit>>& inputs = *allInputs;
  Digit& index = *elementAt(inputs, 0);
  std::shared_ptr<Digit>& radicand = elementAt(inputs, 1);
  std::string radicandText = TaviStringOutput::digitLatex(*radicand);
  const std::string& result = LocalizedString::result.text();

  double z = required(index.z, "an index without a number");

  // The index upside down, as the exponent that the root stands for.
  const auto exponentText = [&] {
    return joined({"^{\\frac{", doubleText(index.n), "}{", doubleText(z), "}}"});
  };

  if (index.n == 0) {
    output.addStep(result,
                   joined({task, " = ", radicandText, exponentText(), " = ", radicandText, "^{0} = 1"}));
    return;
  }

  // A typed minus counts even before a zero.
  if (*index.value() < 0 || (z == 0 && std::signbit(z))) {
    z = std::abs(z);
    index.z = z;
    index.n = std::abs(index.n);
    const std::string indexText = TaviStringOutput::digitLatex(index, {.keepSigns = true});
    addNumberedStep(LocalizedString::reciprocal.text(), joined({"=\\sqrt[\\color{", TaviColor::acting, "}{-}",
                                                                indexText, "]{", radicandText, "}"}));
    radicand->invert();
    radicandText = TaviStringOutput::digitLatex(*radicand);
    output.addStep(
        "", joined({"=\\sqrt[", indexText, "]{\\color{", TaviColor::finished, "}{", radicandText, "}}"}));
  }

  if (index.value() == 1.0) {
    output.addStep(result, joined({task, " = ", radicandText}));
    return;
  }

  if (index.value() == 0.0) {
    const double power = std::pow(required(radicand->value(), "a radicand without a number"), index.n / z);
    output.addStep(result, joined({task, " = ", radicandText, exponentText(), " \\approx ", radicandText,
                                   "^{\\infty} \\approx ", TaviStringOutput::numberLatex(power)}));
    return;
  }

  if (index.n != 1) {
    const std::string numerator = doubleText(z);
    const std::string denominator = doubleText(index.n);
    addNumberedStep(LocalizedString::convert.text(),
                    joined({"=\\sqrt[\\frac{\\color{", TaviColor::numerator, "}{", numerator, "}}{\\color{",
                            TaviColor::denominator, "}{", denominator, "}}]{", radicandText, "}"}));
    const std::string inner =
        joined({radicandText, "^{\\color{", TaviColor::denominator, "}{", denominator, "}}"});
    const std::string root =
        z == 2 ? joined({"\\sqrt{", inner, "}"})
               : joined({"\\sqrt[\\color{", TaviColor::numerator, "}{", numerator, "}]{", inner, "}"});
    output.addStep("", joined({"=", root}));
  }

  index.invert();
  solveExponent(index, radicand, task);
}

}  // namespace tavi
