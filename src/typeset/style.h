#pragma once

#include <cstdint>

#include "typeset/math_font.h"

namespace tavi::typeset {

enum class StyleLevel : std::uint8_t { display, text, script, scriptscript };

/// TeX's eight styles. Cramped styles, below or inside something, raise exponents less.
struct Style {
  StyleLevel level = StyleLevel::display;
  bool isCramped = false;

  [[nodiscard]] bool isDisplay() const { return level == StyleLevel::display; }
  /// Script and scriptscript: nothing is set between atoms but what the writer asks for.
  [[nodiscard]] bool isScript() const { return level >= StyleLevel::script; }
  [[nodiscard]] ScriptShape shape() const;

  [[nodiscard]] Style cramped() const { return {level, true}; }
  [[nodiscard]] Style superscript() const;
  [[nodiscard]] Style subscript() const { return superscript().cramped(); }
  [[nodiscard]] Style numerator() const;
  [[nodiscard]] Style denominator() const { return numerator().cramped(); }
};

}  // namespace tavi::typeset
