#include "solver/rehearsal.h"

namespace tavi {

Rehearsal rehearse(const Task& task, TaviStringOutput& output, TaviMathOperation& operation,
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
    return solver.calculate(task.first, task.firstId, task.second, task.secondId, task.mode);
  } catch (const FatalStop& stop) {
    return undone(stop);
  } catch (const ExpansionTooLong& expansion) {
    return undone(expansion);
  }
}

Rehearsal rehearse(const Task& task, std::int64_t limit) {
  TaviStringOutput output;
  TaviMathOperation operation(output);
  return rehearse(task, output, operation, limit);
}

}  // namespace tavi
