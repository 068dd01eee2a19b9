#include <cmath>

#include "number/fatal_stop.h"
#include "number/number_text.h"
#include "number/text.h"
#include "output/localized_string.h"
#include "output/tavi_color.h"
#include "solver/exponent_solver.h"

namespace tavi {

void TaviExponentSolver::calculatePower() {
  const std::string task = this->task();
  std::vector<std::shared_ptr<Digit>>& inputs = *allInputs;
  Digit& exponent = *elementAt(inputs, 0);
  std::shared_ptr<Digit>& base = elementAt(inputs, 1);
  std::string baseText = TaviStringOutput::digitLatex(*base);
  std::string exponentText = TaviStringOutput::digitLatex(exponent);
  const std::string& result = LocalizedString::result.text();

  if (exponent.value() == 0.0) {
    output.addStep(result, joined({task, " = 1"}));
    return;
  }

  // Written, so known.
  if (*exponent.value() < 0) {
    exponent.z = std::abs(*exponent.z);
    exponent.n = std::abs(exponent.n);
    exponentText = TaviStringOutput::digitLatex(exponent);
    addNumberedStep(LocalizedString::reciprocal.text(),
                    joined({"=", baseText, "^{\\color{", TaviColor::acting, "}{-}", exponentText, "}"}));
    base->invert();
    baseText = TaviStringOutput::digitLatex(*base);
    output.addStep("", joined({"=", baseText, "^{", exponentText, "}"}));
  }

  if (exponent.value() == 1.0) {
    output.addStep(result, joined({task, " = ", baseText}));
    return;
  }

  const double z = *exponent.z;
  if (exponent.n == 0) {
    const double power = std::pow(required(base->value(), "a base without a number"), z / exponent.n);
    // The closing parenthesis stands alone.
    output.addStep(result,
                   joined({task, " = ", baseText, "^{\\infty}) = ", TaviStringOutput::numberLatex(power)}));
    return;
  }

  if (exponent.n != 1) {
    const std::string numerator = doubleText(z);
    const std::string denominator = doubleText(exponent.n);
    addNumberedStep(LocalizedString::convert.text(),
                    joined({"=", baseText, "^{\\frac{\\color{", TaviColor::numerator, "}{", numerator,
                            "}}{\\color{", TaviColor::denominator, "}{", denominator, "}}}"}));
    const std::string radicand =
        z == 1 ? baseText : joined({baseText, "^{\\color{", TaviColor::numerator, "}{", numerator, "}}"});
    const std::string root =
        exponent.n == 2
            ? joined({"\\sqrt{", radicand, "}"})
            : joined({"\\sqrt[\\color{", TaviColor::denominator, "}{", denominator, "}]{", radicand, "}"});
    output.addStep("", joined({"=", root}));
  }

  solveExponent(exponent, base, task);
}

}  // namespace tavi
