// Any bytes are a line: it is set without a fault of memory or arithmetic, and all of it stands at finite
// places.
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "typeset/bundled_font.h"
#include "typeset/typeset.h"

using namespace tavi::typeset;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static MathFont font = MathFont::open(bundledMathFont()).value();
  const std::string_view latex(reinterpret_cast<const char*>(data), size);
  const Layout layout = typeset(latex, font, 20);
  bool isFinite = std::isfinite(layout.width) && std::isfinite(layout.height) && std::isfinite(layout.depth);
  for (const Glyph& glyph : layout.glyphs)
    isFinite = isFinite && std::isfinite(glyph.x) && std::isfinite(glyph.y);
  for (const Rule& rule : layout.rules) {
    isFinite =
        isFinite && std::isfinite(rule.x) && std::isfinite(rule.y) && rule.width >= 0 && rule.height >= 0;
  }
  if (!isFinite) std::abort();
  return 0;
}
