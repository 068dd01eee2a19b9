#include "typeset/commands.h"
#include "typeset/compositor.h"

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

}  // namespace tavi::typeset
