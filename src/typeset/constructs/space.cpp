#include "typeset/commands.h"
#include "typeset/compositor.h"
#include "typeset/mathml.h"

namespace tavi::typeset {

void Space::read(Reader& /*reader*/, const CommandInLine& command, List& into) {
  into.emplace_back().content = Space{command.command.mu};
}

Extent Space::set(Compositor& compositor, Style style) const {
  return {.width = compositor.em(mu / 18, style)};
}

std::string Space::say(const Speaker& /*speaker*/) {
  return {};
}

std::string Space::mathml() const {
  // In thousandths of an em, as a whole number, so that no locale has a say.
  const int thousandths = static_cast<int>(mu * 1000 / 18);
  std::string fraction = std::to_string(thousandths % 1000);
  fraction.insert(0, 3 - fraction.size(), '0');
  return "<mspace width=\"" + std::to_string(thousandths / 1000) + '.' + fraction + "em\"/>";
}

}  // namespace tavi::typeset
