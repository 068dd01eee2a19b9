#pragma once

#include <optional>
#include <string_view>

#include "input/mode.h"
#include "input/typed_task.h"

namespace tavi {

/// The key of a few words on what is still missing in a task, or wrong with it, while it is typed; empty
/// where the task can be read.
std::string_view typingHint(std::optional<Mode> mode, const TypedTask& task);

}  // namespace tavi
