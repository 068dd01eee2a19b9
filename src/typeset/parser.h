#pragma once

#include <string_view>

#include "typeset/parse_tree.h"

namespace tavi::typeset {

/// Groups, arguments and fences within each other; deeper nesting is an error of the line.
inline constexpr int maximumNesting = 200;

/// Reads one line of LaTeX (UTF-8, any bytes allowed). It never fails as a whole: a piece that cannot be read
/// stands in the tree as unreadable text, the rest around it as usual, and `error` tells the first such
/// piece.
Formula parse(std::string_view latex);

}  // namespace tavi::typeset
