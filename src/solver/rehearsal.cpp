#include "solver/rehearsal.h"

namespace tavi {

Rehearsal rehearse(const std::optional<std::string>& firstText, std::string_view firstId,
                   const std::optional<std::string>& secondText, std::string_view secondId, int mode,
                   std::int64_t copyLimit) {
  TaviStringOutput output;
  TaviMathOperation operation(output);
  TaviExponentSolver solver(output, operation);
  solver.expansionLimit = copyLimit;
  try {
    return solver.calculate(firstText, firstId, secondText, secondId, mode);
  } catch (const FatalStop& stop) {
    return stop;
  } catch (const ExpansionTooLong& expansion) {
    return expansion;
  }
}

}  // namespace tavi
