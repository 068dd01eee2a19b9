#include <algorithm>

#include "typeset/compositor.h"

namespace tavi::typeset {

Extent Compositor::radical(const Radical& radical, Style style) {
  const Mark start = mark();
  const Extent radicand = list(radical.radicand, style.cramped());
  const Mark radicandEnd = mark();

  const double thickness = em(constants_.radicalRuleThickness, style);
  double gap = em(
      style.isDisplay() ? constants_.radicalDisplayStyleVerticalGap : constants_.radicalVerticalGap, style);
  const double needed = radicand.total() + gap + thickness;
  const Extent sign = delimiter(U'√', needed, style);
  if (sign.total() > needed) gap += (sign.total() - needed) / 2;
  const double ruleTop = radicand.height + gap + thickness;
  const double signBottom = ruleTop - sign.total();
  move(radicandEnd, 0, ruleTop - sign.height);
  move(start, radicandEnd, sign.width, 0);
  addRule(sign.width, ruleTop - thickness, radicand.width, thickness);
  join(radicandEnd);
  Extent box{.width = sign.width + radicand.width,
             .height = ruleTop + em(constants_.radicalExtraAscender, style),
             .depth = std::max(radicand.depth, -signBottom)};
  if (radical.index.empty()) return box;

  const Mark rootEnd = mark();
  const Extent index = list(radical.index, {StyleLevel::scriptscript});
  const double before = em(constants_.radicalKernBeforeDegree, style);
  const double after = em(constants_.radicalKernAfterDegree, style);
  const double signStart = std::max(0.0, before + index.width + after);
  const double raise = signBottom + constants_.radicalDegreeBottomRaisePercent * sign.total();
  move(start, rootEnd, signStart, 0);
  move(rootEnd, before, raise);
  box.width += signStart;
  box.height = std::max(box.height, raise + index.height);
  box.depth = std::max(box.depth, index.depth - raise);
  return box;
}

}  // namespace tavi::typeset
