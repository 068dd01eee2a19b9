#include <algorithm>

#include "typeset/compositor.h"

namespace tavi::typeset {
namespace {

// TeX's \nulldelimiterspace at either side, which the MATH table does not know; in ems of the line.
constexpr double sideBlank = 0.12;

}  // namespace

Extent Compositor::fraction(const Fraction& fraction, Style style) {
  const bool isDisplay = style.isDisplay();
  const Mark start = mark();
  const Extent numerator = list(fraction.numerator, style.numerator());
  const Mark middle = mark();
  const Extent denominator = list(fraction.denominator, style.denominator());

  const double thickness = em(constants_.fractionRuleThickness, style);
  const double ruleTop = em(constants_.axisHeight, style) + thickness / 2;
  const double ruleBottom = ruleTop - thickness;
  const double numeratorShift =
      em(isDisplay ? constants_.fractionNumeratorDisplayStyleShiftUp : constants_.fractionNumeratorShiftUp,
         style);
  const double numeratorGap =
      em(isDisplay ? constants_.fractionNumDisplayStyleGapMin : constants_.fractionNumeratorGapMin, style);
  const double denominatorShift = em(isDisplay ? constants_.fractionDenominatorDisplayStyleShiftDown
                                               : constants_.fractionDenominatorShiftDown,
                                     style);
  const double denominatorGap = em(
      isDisplay ? constants_.fractionDenomDisplayStyleGapMin : constants_.fractionDenominatorGapMin, style);
  const double up = std::max(numeratorShift, ruleTop + numeratorGap + numerator.depth);
  const double down = std::max(denominatorShift, denominator.height + denominatorGap - ruleBottom);

  const double width = std::max(numerator.width, denominator.width);
  const double side = rootEm(sideBlank);
  move(start, middle, side + (width - numerator.width) / 2, up);
  move(middle, side + (width - denominator.width) / 2, -down);
  addRule(side, ruleBottom, width, thickness);
  return {width + 2 * side, up + numerator.height, down + denominator.depth};
}

}  // namespace tavi::typeset
