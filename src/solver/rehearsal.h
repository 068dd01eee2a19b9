#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>

#include "number/fatal_stop.h"
#include "solver/exponent_solver.h"

namespace tavi {

/// How a task would end: in an outcome (a rejected input is one), in a fatal stop, or beyond the allowed
/// length.
using Rehearsal = std::variant<CalculationOutcome, FatalStop, ExpansionTooLong>;

/// Carries a task out on a collector of its own and tells how it ends. The shared collector and arithmetic
/// stay untouched, and no fatal stop leaves. `copyLimit` is the most copies of a base that a power may be
/// written out with.
Rehearsal rehearse(const std::optional<std::string>& firstText, std::string_view firstId,
                   const std::optional<std::string>& secondText, std::string_view secondId, int mode,
                   std::int64_t copyLimit);

}  // namespace tavi
