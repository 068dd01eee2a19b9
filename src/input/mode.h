#pragma once

#include <cstdint>
#include <optional>

namespace tavi {

/// What the mode switch chooses. It is switched, stored and told by its number, which need not be that of a
/// mode.
enum class Mode { power = 0, root = 1 };

/// The mode of that number; absent for any other number.
constexpr std::optional<Mode> modeOf(std::int64_t number) {
  if (number != 0 && number != 1) return std::nullopt;
  return static_cast<Mode>(number);
}

}  // namespace tavi
