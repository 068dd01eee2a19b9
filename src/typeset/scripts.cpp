#include <algorithm>

#include "typeset/compositor.h"

namespace tavi::typeset {

Extent Compositor::scripts(const Scripts& scripts, Style style) {
  const Atom& nucleus = scripts.nucleus.front();
  const bool isSingle = singleSymbol(nucleus) != nullptr;
  Extent box = atom(nucleus, style);
  const double nucleusWidth = box.width;
  // A character has its scripts at fixed heights; anything else has them at its own edges.
  double up = isSingle ? 0 : box.height - em(constants_.superscriptBaselineDropMax, style);
  double down = isSingle ? 0 : box.depth + em(constants_.subscriptBaselineDropMin, style);

  const Mark superscriptStart = mark();
  const Extent above = scripts.superscript ? list(*scripts.superscript, style.superscript()) : Extent{};
  const Mark subscriptStart = mark();
  const Extent below = scripts.subscript ? list(*scripts.subscript, style.subscript()) : Extent{};

  if (scripts.superscript) {
    up = std::max(
        {up,
         em(style.isCramped ? constants_.superscriptShiftUpCramped : constants_.superscriptShiftUp, style),
         above.depth + em(constants_.superscriptBottomMin, style)});
  }
  if (scripts.subscript) {
    down = std::max(down, em(constants_.subscriptShiftDown, style));
    if (!scripts.superscript) down = std::max(down, below.height - em(constants_.subscriptTopMax, style));
  }
  if (scripts.superscript && scripts.subscript) {
    const double gap = (up - above.depth) - (below.height - down);
    const double lowering = em(constants_.subSuperscriptGapMin, style) - gap;
    if (lowering > 0) {
      down += lowering;
      const double bottomMax = em(constants_.superscriptBottomMaxWithSubscript, style);
      const double lift = std::max(0.0, bottomMax - (up - above.depth));
      up += lift;
      down -= lift;
    }
  }

  const double spaceAfter = em(constants_.spaceAfterScript, style);
  if (scripts.superscript) {
    const double start = nucleusWidth + italicCorrection(nucleus, style);
    move(superscriptStart, subscriptStart, start, up);
    box.width = std::max(box.width, start + above.width + spaceAfter);
    box.height = std::max(box.height, up + above.height);
    box.depth = std::max(box.depth, above.depth - up);
  }
  if (scripts.subscript) {
    move(subscriptStart, nucleusWidth, -down);
    box.width = std::max(box.width, nucleusWidth + below.width + spaceAfter);
    box.height = std::max(box.height, below.height - down);
    box.depth = std::max(box.depth, down + below.depth);
  }
  return box;
}

}  // namespace tavi::typeset
