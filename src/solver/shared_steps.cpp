#include <cmath>

#include "number/fatal_stop.h"
#include "number/number_text.h"
#include "number/text.h"
#include "output/localized_string.h"
#include "output/tavi_color.h"
#include "solver/exponent_solver.h"

namespace tavi {

namespace {

std::string colored(std::string_view color, std::string_view latex) {
  return joined({"\\color{", color, "}{", latex, "}"});
}

std::string fraction(std::string_view numerator, std::string_view denominator) {
  return joined({"\\frac{", numerator, "}{", denominator, "}"});
}

// The real n-th root. An odd root of a negative number is negative.
double rootValue(double value, double n) {
  if (value < 0 && std::abs(std::fmod(n, 2.0)) == 1) return -std::pow(-value, 1.0 / n);
  return std::pow(value, 1.0 / n);
}

}  // namespace

std::string TaviExponentSolver::RootFrame::around(std::string_view radicand) const {
  return joined({open, radicand, close});
}

// Index 1 is no root.
TaviExponentSolver::RootFrame TaviExponentSolver::rootFrame(double n) {
  if (n == 1) return {"", ""};
  if (n == 2) return {"\\sqrt{", "}"};
  return {joined({"\\sqrt[", doubleText(n), "]{"}), "}"};
}

void TaviExponentSolver::solveExponent(const Digit& exponent, std::shared_ptr<Digit>& base,
                                       std::string_view task) {
  const RootFrame root = rootFrame(exponent.n);
  if (required(exponent.z, "an exponent without a number") > 1) writePower(exponent, base, root);
  if (exponent.n != 1 && !writeRoot(exponent, *base, root)) return;
  writeResult(exponent, *base, task);
}

void TaviExponentSolver::writePower(const Digit& exponent, std::shared_ptr<Digit>& base,
                                    const RootFrame& root) {
  const double power = *exponent.z;
  const std::string baseText = TaviStringOutput::digitLatex(*base);
  // Of all numbered steps this one alone has no "=" in front.
  addNumberedStep(LocalizedString::calculatePower.text(),
                  root.around(joined({baseText, "^{", colored(TaviColor::acting, doubleText(power)), "}"})));

  const std::int64_t copies = truncatedToInt64(power);
  if (copies > expansionLimit) throw ExpansionTooLong{copies};
  const std::string factor = joined({"\\left( ", baseText, " \\right) "});
  std::string expansion = joined({"=", root.open});
  expansion.reserve(expansion.size() + factor.size() * static_cast<std::size_t>(copies) + root.close.size());
  for (std::int64_t i = 0; i < copies; ++i) expansion += factor;
  expansion += root.close;
  output.addStep("", std::move(expansion));

  base = TaviMathOperation::raised(*base, power);
  output.addStep(
      "", joined({"=", root.around(colored(TaviColor::finished, TaviStringOutput::digitLatex(*base)))}));
}

// False when the root does not exist, which ends the solution.
bool TaviExponentSolver::writeRoot(const Digit& exponent, Digit& base, const RootFrame& root) {
  const double n = exponent.n;
  const bool isEven = truncatedToInt64(n) % 2 == 0;
  if (isEven && required(base.value(), "a base without a number") < 0) {
    output.addStep(LocalizedString::noSolution.text(), "");
    return false;
  }

  const double z = required(base.z, "a base without a number");
  const bool isFraction = base.n != 1;
  const std::string index = doubleText(n);

  // A line of numerator and denominator alike, or of the numerator alone.
  const auto line = [isFraction](const auto& side, const std::string& numerator,
                                 const std::string& denominator) {
    return joined({"=", isFraction ? fraction(side(numerator), side(denominator)) : side(numerator)});
  };
  const auto inRoot = [&](const std::string& side) { return root.around(side); };
  const auto extracted = [&](const std::string& side) {
    return joined({"\\sqrt[", colored(TaviColor::acting, index), "]{", side, "}"});
  };
  const auto undone = [&](const std::string& side) {
    return root.around(joined({side, "^{", colored(TaviColor::numerator, index), "}"}));
  };
  const auto exponentsCancel = [&](const std::string& side) {
    return joined({side, "^{", fraction(index, index), "}"});
  };

  const std::string zText = TaviStringOutput::numberLatex(z);
  const std::string nText = TaviStringOutput::numberLatex(base.n);
  if (isFraction) addNumberedStep(LocalizedString::convert.text(), line(inRoot, zText, nText));
  addNumberedStep(LocalizedString::extractARoot.text(), line(extracted, zText, nText));

  base.z = rootValue(z, n);
  base.n = rootValue(base.n, n);
  const std::string newZ = TaviStringOutput::numberLatex(*base.z);
  const std::string newN = TaviStringOutput::numberLatex(base.n);
  output.addStep("", line(undone, newZ, newN));
  output.addStep("", line(exponentsCancel, newZ, newN));
  output.addStep("", joined({"=", colored(TaviColor::finished, isFraction ? fraction(newZ, newN) : newZ)}));
  return true;
}

void TaviExponentSolver::writeResult(const Digit& exponent, const Digit& base, std::string_view task) {
  const std::string result = TaviStringOutput::digitLatex(base);
  const bool isEvenRoot = std::fmod(exponent.n, 2.0) == 0 && exponent.n != 1;

  std::string relation;
  std::string decimal;
  if (base.n != 1) {
    const RoundedValue rounded =
        TaviMathOperation::roundedIfNearlyExact(5, required(base.value(), "a result without a number"));
    relation = rounded.isApproximate ? " \\approx " : " = ";
    decimal = TaviStringOutput::numberLatex(rounded.value);
  }
  const auto line = [&](std::string_view sign) {
    return base.n == 1 ? joined({task, " = ", sign, result})
                       : joined({task, " = ", sign, result, relation, sign, decimal});
  };
  output.addStep(LocalizedString::result.text(), line(""));
  if (isEvenRoot) output.addStep("", line("-"));
}

}  // namespace tavi
