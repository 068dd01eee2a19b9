#pragma once

#include <string>
#include <string_view>

namespace tavi {

/// A stored line of LaTeX as it is typeset: without the traces of its making, such as doubled signs, a
/// trailing
/// ".0" and bare parentheses, and with a thin space before each colour.
std::string displayLatex(std::string_view latex);

}  // namespace tavi
