#pragma once

#include "typeset/bundled_font.h"
#include "typeset/math_font.h"

namespace tavi::typeset {

/// The bundled font, opened once for all tests.
inline MathFont& testFont() {
  static MathFont font = MathFont::open(bundledMathFont()).value();
  return font;
}

}  // namespace tavi::typeset
