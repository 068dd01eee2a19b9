#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "number/fatal_stop.h"
#include "solver/exponent_solver.h"

namespace tavi {

/// How a task ends: in an outcome (a rejected input is one), in a fatal stop, or beyond the allowed length.
using Rehearsal = std::variant<CalculationOutcome, FatalStop, ExpansionTooLong>;

/// The most copies of a base that a power is written out with, wherever it is shown.
inline constexpr std::int64_t copyLimit = 10'000;

/// A task as `TaviExponentSolver::calculate` takes it.
struct Task {
  std::optional<Mode> mode;
  std::optional<std::string> first{};
  std::optional<std::string> second{};
  std::string_view firstId = "aTextField";
  std::string_view secondId = "xTextField";
};

/// Carries the task out in a collector, which is empty before, and tells how it ends; no fatal stop leaves.
/// Where that is no outcome, the
/// collector is empty again and the arithmetic as it was.
Rehearsal rehearse(const Task& task, TaviStringOutput& output, TaviMathOperation& operation,
                   std::int64_t limit = copyLimit);

/// The same in a collector of its own.
Rehearsal rehearse(const Task& task, std::int64_t limit = copyLimit);

/// What a user is told of a task without a solution: the error key, and the fields at fault.
struct Rejection {
  std::string key;
  std::vector<std::string> fieldIds;
};

/// Absent where the task has a solution.
std::optional<Rejection> rejectionOf(const Task& task, const Rehearsal& ending);

}  // namespace tavi
