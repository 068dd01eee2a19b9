#include "typeset/bundled_font.h"

// The assembler puts the file into the read-only data; as an array of numbers it would take the compiler
// seconds.
asm(".section .rodata\n"
    ".balign 16\n"
    ".global tavi_math_font_begin\n"
    "tavi_math_font_begin:\n"
    ".incbin \"" TAVI_MATH_FONT
    "\"\n"
    ".global tavi_math_font_end\n"
    "tavi_math_font_end:\n"
    ".byte 0\n"
    ".text\n");

extern "C" {
extern const std::byte tavi_math_font_begin[];
extern const std::byte tavi_math_font_end[];
}

namespace tavi::typeset {

std::span<const std::byte> bundledMathFont() {
  return {tavi_math_font_begin, tavi_math_font_end};
}

}  // namespace tavi::typeset
