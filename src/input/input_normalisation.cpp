// What runs on the numbers once they are read: the opening steps of every working.
#include <cmath>
#include <span>
#include <string_view>
#include <utility>

#include "input/input_manager.h"
#include "number/digit_analyser.h"
#include "number/fatal_stop.h"
#include "number/number_text.h"
#include "number/text.h"
#include "output/localized_string.h"

namespace tavi {

namespace {

std::string latexWithSigns(const Digit& number, bool keepSigns) {
  return TaviStringOutput::digitLatex(number, {.keepSigns = keepSigns});
}

}  // namespace

void TaviInputManager::outputInput(bool keepSigns) {
  std::string_view title =
      isAnyNumberChanged ? LocalizedString::modifiedInput.text() : LocalizedString::yourInput.text();
  if (inputFormatMode == FormatMode::formula) {
    const std::string_view format = inputFormat.empty() ? "" : std::string_view(inputFormat.front());
    outputHelper.addStep(std::string(title), taskLatex(format, allInputs, keepSigns));
    return;
  }
  for (std::size_t i = 0; i < allInputs.size(); ++i) {
    const std::string line = taskLatex(elementAt(inputFormat, i), std::span(&allInputs[i], 1), keepSigns);
    outputHelper.addStep(std::string(title), joined({line, " ", unitLatex(i), "\n"}));
    title = "";
  }
}

void TaviInputManager::eliminateDecimals() {
  std::vector<DecimalElimination> eliminations;
  for (std::size_t i = 0; i < allInputs.size(); ++i) {
    if (allTextFieldTexts[i].empty()) continue;
    Digit& number = *allInputs[i];
    const double z = required(number.z, "a field without a number");
    // Six significant digits are what counts from here on.
    const std::string zText = generalText(z);
    const std::string nText = generalText(number.n);
    const double places = TaviDigitAnalyser::decimalPlaces(zText, nText);
    const bool isFractionWanted =
        (isWithFraction && isAllFractionIfOccuredOnce) || isDecimalEliminationForced || number.n != 1.0;
    if (!(places > 0) || !isFractionWanted) continue;

    const std::string oldLatex = latexWithSigns(number, false);
    const double factor = std::pow(10.0, places);
    const std::string factorText = generalText(factor);
    const std::string fractionLatex =
        joined({"\\frac{", zText, " \\cdot ", factorText, "}{", nText, " \\cdot ", factorText, "}"});
    number.z = std::round(factor * readGeneralText(zText));
    number.n = std::round(factor * readGeneralText(nText));
    const std::string change = joined({fractionLatex, " = ", latexWithSigns(number, false)});
    const bool isLine = inputFormatMode == FormatMode::formula;
    eliminations.push_back({i, isLine ? joined({oldLatex, " = ", change}) : change});
    isAnyNumberChanged = true;
    isWithFraction = true;
  }
  if (inputFormatMode == FormatMode::formula) {
    writeExpansions(std::move(eliminations));
  } else {
    rewriteVariableSteps(eliminations);
  }
}

void TaviInputManager::writeExpansions(std::vector<DecimalElimination> eliminations) {
  std::string_view title = LocalizedString::expand.text();
  for (DecimalElimination& elimination : eliminations) {
    outputHelper.addStep(std::string(title), std::move(elimination.latex));
    title = "";
  }
}

void TaviInputManager::rewriteVariableSteps(const std::vector<DecimalElimination>& eliminations) {
  for (const auto& [field, latex] : eliminations) {
    const std::string prefix = replacedAll(elementAt(inputFormat, field), "%0", "");
    for (SolutionStep& step : outputHelper.solutionSteps) {
      if (!step.latexString || !step.latexString->starts_with(prefix)) continue;
      step.latexString = joined({replacedAll(*step.latexString, "\n", " = "), latex, " ", unitLatex(field)});
    }
  }
}

void TaviInputManager::cancelInputs() {
  std::string_view title = LocalizedString::cancelMath.text();
  for (auto& number : allInputs) {
    const auto cancellation = operation_.cancelDown(*number);
    if (!cancellation) continue;
    const std::string oldLatex = latexWithSigns(*number, true);
    number = cancellation->digit;
    outputHelper.addStep(std::string(title), joined({oldLatex, "= ", cancellation->latex}));
    title = "";
    isAnyNumberChanged = true;
  }
}

void TaviInputManager::moveDenominatorSigns() {
  for (const auto& number : allInputs) {
    if (!number->z || !(number->n < 0)) continue;
    number->z = -*number->z;
    number->n = -number->n;
    isAnyNumberChanged = true;
  }
}

std::string TaviInputManager::unitLatex(std::size_t field) const {
  const std::string& key = elementAt(inputSymbols, field).unit;
  for (const Unit& unit : TaviFormulaUnit::shared().units) {
    if (unit.key == key) return unit.latex;
  }
  fatalStop("a symbol with an unknown unit");
}

}  // namespace tavi
