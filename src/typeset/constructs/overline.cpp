#include <utility>

#include "typeset/commands.h"
#include "typeset/compositor.h"
#include "typeset/mathml.h"
#include "typeset/reader.h"
#include "typeset/speaker.h"

namespace tavi::typeset {

void Overline::read(Reader& reader, const CommandInLine& command, List& into) {
  auto content = reader.argument();
  if (!content) {
    return reader.unreadable(into, command.start, command.end, "\\overline needs an argument");
  }
  into.emplace_back().content = Overline{.content = *std::move(content)};
}

Extent Overline::set(Compositor& compositor, Style style) const {
  const MathConstants& constants = compositor.constants();
  Extent box = compositor.list(content, style.cramped());
  const double thickness = compositor.em(constants.overbarRuleThickness, style);
  const double gap = compositor.em(constants.overbarVerticalGap, style);
  compositor.addRule(0, box.height + gap, box.width, thickness);
  box.height += gap + thickness + compositor.em(constants.overbarExtraAscender, style);
  return box;
}

std::string Overline::say(const Speaker& speaker) const {
  constexpr Phrase period{"mathPeriod", "%1 repeating"};
  return speaker.phrase(period, speaker.list(content));
}

std::string Overline::mathml() const {
  return element("mover", mathmlRow(content) + element("mo", "¯"));
}

}  // namespace tavi::typeset
