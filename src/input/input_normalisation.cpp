// What runs on the numbers once they are read: the opening steps of every working.
#include <cmath>
#include <span>
#include <string_view>

#include "input/input_manager.h"
#include "number/digit_analyser.h"
#include "number/fatal_stop.h"
#include "number/number_text.h"
#include "number/text.h"
#include "output/localized_string.h"

namespace tavi {

namespace {

constexpr std::string_view changedMark = " changed";

std::string latexWithSigns(const Digit& number, bool keepSigns) {
  return TaviStringOutput::digitLatex(number, {.keepSigns = keepSigns});
}

}  // namespace

void TaviInputManager::outputInput(bool keepSigns) {
  std::string_view title =
      isAnyNumberChanged ? LocalizedString::modifiedInput.text() : LocalizedString::yourInput.text();
  if (inputFormatMode == FormatMode::formula) {
    const std::string_view format = inputFormat.empty() ? "" : std::string_view(inputFormat.front());
    outputHelper.addStep(title, taskLatex(format, allInputs, keepSigns));
    return;
  }
  for (std::size_t i = 0; i < allInputs.size(); ++i) {
    const std::string line = taskLatex(elementAt(inputFormat, i), std::span(&allInputs[i], 1), keepSigns);
    outputHelper.addStep(title, joined({line, " ", unitLatex(i), "\n"}));
    title = "";
  }
}

void TaviInputManager::eliminateDecimals() {
  std::vector<std::string> lines;
  std::vector<std::size_t> changedIndices;
  for (std::size_t i = 0; i < allInputs.size(); ++i) {
    Digit& number = *allInputs[i];
    if (allTextFieldTexts[i].empty()) {
      lines.emplace_back();
      continue;
    }
    std::string oldLatex = latexWithSigns(number, false);
    const double z = required(number.z, "a field without a number");
    // Six significant digits are what counts from here on.
    const std::string zText = generalText(z);
    const std::string nText = generalText(number.n);
    const double places = TaviDigitAnalyser::decimalPlaces(zText, nText);
    const bool isFractionWanted =
        (isWithFraction && isAllFractionIfOccuredOnce) || isDecimalEliminationForced || number.n != 1.0;
    if (!(places > 0) || !isFractionWanted) {
      lines.push_back(std::move(oldLatex));
      continue;
    }

    const double factor = std::pow(10.0, places);
    const std::string factorText = generalText(factor);
    const std::string fractionLatex =
        joined({"\\frac{", zText, " \\cdot ", factorText, "}{", nText, " \\cdot ", factorText, "}"});
    number.z = std::round(factor * readGeneralText(zText));
    number.n = std::round(factor * readGeneralText(nText));
    const std::string change = joined({fractionLatex, " = ", latexWithSigns(number, false)});
    lines.push_back(inputFormatMode == FormatMode::formula ? joined({oldLatex, " = ", change, changedMark})
                                                           : change);
    changedIndices.push_back(i);
    isAnyNumberChanged = true;
    isWithFraction = true;
  }

  if (changedIndices.empty()) return;
  if (inputFormatMode == FormatMode::formula) {
    writeExpansions(lines);
  } else {
    rewriteVariableSteps(lines, changedIndices);
  }
}

void TaviInputManager::writeExpansions(const std::vector<std::string>& lines) {
  std::string_view title = LocalizedString::expand.text();
  for (const std::string& line : lines) {
    if (!line.ends_with(changedMark)) continue;
    outputHelper.addStep(title, replacedAll(line, changedMark, ""));
    title = "";
  }
}

void TaviInputManager::rewriteVariableSteps(const std::vector<std::string>& lines,
                                            const std::vector<std::size_t>& changedIndices) {
  for (const std::size_t i : changedIndices) {
    const std::string prefix = replacedAll(elementAt(inputFormat, i), "%0", "");
    for (SolutionStep& step : outputHelper.solutionSteps) {
      if (!step.latexString || !step.latexString->starts_with(prefix)) continue;
      step.latexString = joined({replacedAll(*step.latexString, "\n", " = "), lines[i], " ", unitLatex(i)});
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
    outputHelper.addStep(title, joined({oldLatex, "= ", cancellation->latex}));
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
