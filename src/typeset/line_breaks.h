#pragma once

#include <vector>

#include "typeset/layout.h"

namespace tavi::typeset {

/// A part of a line, from `left` up to `right`, both counted from the start of the line.
struct LinePart {
  double left = 0;
  double right = 0;
};

/// Parts of the line that are at most `widest` wide, which is positive, and together are the whole of it. It
/// is parted in front of an opening parenthesis, an equals sign or an operator; inside a fraction or a root
/// only where nothing else is left.
std::vector<LinePart> parted(const Layout& layout, double widest);

}  // namespace tavi::typeset
