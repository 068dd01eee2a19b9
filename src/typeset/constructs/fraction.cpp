#include <algorithm>

#include "typeset/commands.h"
#include "typeset/compositor.h"
#include "typeset/mathml.h"
#include "typeset/reader.h"
#include "typeset/speaker.h"

namespace tavi::typeset {

void Fraction::read(Reader& reader, const CommandInLine& command, List& into) {
  auto numerator = reader.argument();
  auto denominator = numerator ? reader.argument() : std::nullopt;
  if (numerator && denominator) {
    into.emplace_back().content =
        Fraction{.numerator = *std::move(numerator), .denominator = *std::move(denominator)};
    return;
  }
  reader.unreadable(into, command.start, command.end, "\\frac needs two arguments");
  if (numerator) append(into, *std::move(numerator));
}

Extent Fraction::set(Compositor& compositor, Style style) const {
  // TeX's \nulldelimiterspace at either side, which the MATH table does not know; in ems of the line.
  constexpr double sideBlank = 0.12;
  const MathConstants& constants = compositor.constants();
  const auto length = [&](double inDisplay, double elsewhere) {
    return compositor.em(style.isDisplay() ? inDisplay : elsewhere, style);
  };
  const auto start = compositor.mark();
  const Extent above = compositor.list(numerator, style.numerator());
  const auto middle = compositor.mark();
  const Extent below = compositor.list(denominator, style.denominator());

  const double thickness = compositor.em(constants.fractionRuleThickness, style);
  const double ruleTop = compositor.em(constants.axisHeight, style) + thickness / 2;
  const double ruleBottom = ruleTop - thickness;
  const double leastUp =
      length(constants.fractionNumeratorDisplayStyleShiftUp, constants.fractionNumeratorShiftUp);
  const double gapAbove = length(constants.fractionNumDisplayStyleGapMin, constants.fractionNumeratorGapMin);
  const double leastDown =
      length(constants.fractionDenominatorDisplayStyleShiftDown, constants.fractionDenominatorShiftDown);
  const double gapBelow =
      length(constants.fractionDenomDisplayStyleGapMin, constants.fractionDenominatorGapMin);
  const double up = std::max(leastUp, ruleTop + gapAbove + above.depth);
  const double down = std::max(leastDown, below.height + gapBelow - ruleBottom);

  const double width = std::max(above.width, below.width);
  const double side = compositor.rootEm(sideBlank);
  compositor.move(start, middle, side + (width - above.width) / 2, up);
  compositor.move(middle, side + (width - below.width) / 2, -down);
  compositor.addRule(side, ruleBottom, width, thickness);
  return {width + 2 * side, up + above.height, down + below.depth};
}

std::string Fraction::say(const Speaker& speaker, bool hasScripts) const {
  constexpr Phrase brief{"mathFraction", "%1 over %2"};
  constexpr Phrase whole{"mathLongFraction", "fraction %1 over %2 end of fraction"};
  const bool isBrief = isShort(numerator) && isShort(denominator) && !hasScripts;
  return speaker.phrase(isBrief ? brief : whole, speaker.list(numerator), speaker.list(denominator));
}

std::string Fraction::mathml() const {
  return element("mfrac", mathmlRow(numerator) + mathmlRow(denominator));
}

}  // namespace tavi::typeset
