#pragma once

#include <optional>
#include <string_view>

#include "typeset/layout.h"
#include "typeset/math_font.h"

namespace tavi::typeset {

/// Reads and sets one line of LaTeX (UTF-8) at the em `size`, which is positive. A faulty line is set as far
/// as it reads; `error` of the result then tells its first fault.
Layout typeset(std::string_view latex, MathFont& font, double size);

}  // namespace tavi::typeset
