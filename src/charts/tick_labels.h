#pragma once

#include <string>

namespace tavi {

/// The text of a tick on an axis in multiples of π: the multiple of a half of π that lies nearest to `value`,
/// halves upwards: 0, π/2, -π, 3π/2.
std::string piTickLabel(double value);

}  // namespace tavi
