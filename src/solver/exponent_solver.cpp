#include "solver/exponent_solver.h"

#include <utility>

#include "input/input_manager.h"
#include "number/fatal_stop.h"

namespace tavi {

TaviExponentSolver::TaviExponentSolver(TaviStringOutput& collector, TaviMathOperation& arithmetic)
    : operation(arithmetic), output(collector) {}

CalculationOutcome TaviExponentSolver::calculate(const std::optional<std::string>& firstText,
                                                 std::string_view firstId,
                                                 const std::optional<std::string>& secondText,
                                                 std::string_view secondId, std::optional<Mode> mode) {
  CalculationOutcome outcome = collect(firstText, firstId, secondText, secondId, mode);
  if (!outcome.errorKey) outcome.solutionSteps = output.solutionSteps;
  return outcome;
}

CalculationOutcome TaviExponentSolver::collect(const std::optional<std::string>& firstText,
                                               std::string_view firstId,
                                               const std::optional<std::string>& secondText,
                                               std::string_view secondId, std::optional<Mode> mode) {
  TypedTask typed = typedTask(mode, firstText.value_or(""), secondText.value_or(""));
  typed.request.ids = {std::string(firstId), std::string(secondId)};
  TermAnalysisResult analysis = TaviInputManager(output, operation).collect(std::move(typed));

  allInputs = std::move(analysis.allInputs);
  if (!allInputs) {
    return {.errorKey = std::move(analysis.errorKey), .errorFieldIds = std::move(analysis.missingIds)};
  }
  operation.withFraction = true;
  if (mode == Mode::power) calculatePower();
  if (mode == Mode::root) calculateRoot();
  return {.latexString = task()};
}

std::string TaviExponentSolver::task() const {
  return required(elementAt(output.solutionSteps, 0).latexString, "a first step without a formula");
}

void TaviExponentSolver::addNumberedStep(std::string_view title, std::string latexString) {
  output.addStep(output.numberedTitle(title), std::move(latexString));
}

}  // namespace tavi
