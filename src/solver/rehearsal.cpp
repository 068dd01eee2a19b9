#include "solver/rehearsal.h"

#include <utility>

#include "output/tavi_error.h"

namespace tavi {

namespace {

// The ending of the task; the steps of an outcome are in the collector alone.
Rehearsal carriedOut(const Task& task, TaviStringOutput& output, TaviMathOperation& operation,
                     std::int64_t limit) {
  const bool withFraction = operation.withFraction;
  const auto undone = [&](Rehearsal ending) {
    output.reset();
    operation.withFraction = withFraction;
    return ending;
  };
  TaviExponentSolver solver(output, operation);
  solver.expansionLimit = limit;
  try {
    return solver.collect(task.first, task.firstId, task.second, task.secondId, task.mode);
  } catch (const FatalStop& stop) {
    return undone(stop);
  } catch (const ExpansionTooLong& expansion) {
    return undone(expansion);
  }
}

}  // namespace

Rehearsal rehearse(const Task& task, TaviStringOutput& output, TaviMathOperation& operation,
                   std::int64_t limit) {
  Rehearsal ending = carriedOut(task, output, operation, limit);
  if (auto* outcome = std::get_if<CalculationOutcome>(&ending); outcome != nullptr && !outcome->errorKey) {
    outcome->solutionSteps = output.solutionSteps;
  }
  return ending;
}

Rehearsal rehearse(const Task& task, std::int64_t limit) {
  constexpr std::size_t usualSteps = 16;
  TaviStringOutput output;
  output.solutionSteps.reserve(usualSteps);
  TaviMathOperation operation(output);
  Rehearsal ending = carriedOut(task, output, operation, limit);
  if (auto* outcome = std::get_if<CalculationOutcome>(&ending); outcome != nullptr && !outcome->errorKey) {
    outcome->solutionSteps = std::move(output.solutionSteps);
  }
  return ending;
}

std::optional<Rejection> rejectionOf(const Task& task, const Rehearsal& ending) {
  const std::string first(task.firstId);
  if (std::holds_alternative<ExpansionTooLong>(ending))
    return Rejection{std::string(TaviError::calculationTooLong), {first}};
  if (std::holds_alternative<FatalStop>(ending))
    return Rejection{std::string(TaviError::calculationOutOfRange), {first, std::string(task.secondId)}};
  const auto& outcome = std::get<CalculationOutcome>(ending);
  if (!outcome.errorKey) return std::nullopt;
  return Rejection{*outcome.errorKey, required(outcome.errorFieldIds, "an error without fields")};
}

}  // namespace tavi
