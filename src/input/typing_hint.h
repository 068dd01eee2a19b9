#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "input/mode.h"
#include "input/typed_task.h"

namespace tavi {

/// The key of a few words on what is still missing in a task, or wrong with it; empty where the task can be
/// read.
std::string_view faultHint(std::optional<Mode> mode, const TypedTask& task);

/// The same while it is typed: what is wrong with a field goes before what the others still miss.
std::string_view typingHint(std::optional<Mode> mode, const TypedTask& task);

/// Where to go on in the text of a field that is no number: where something is missing, or behind what cannot
/// stand where it does; else at its end. In bytes.
std::size_t faultPlace(std::string_view text);

}  // namespace tavi
