#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "typeset/math_font.h"
#include "typeset/parse_tree.h"

namespace tavi::typeset {

/// Glyphs and rules that form one figure, such as a root's sign with its bar or the pieces of a tall
/// parenthesis, have the same number and are to be filled as one outline, without seams.
using Figure = std::uint32_t;
inline constexpr Figure noFigure = 0;

/// A glyph with its origin. All lengths of a layout are in the unit of the font size (pixels, points, …); x
/// grows to the right from the start of the line, y upwards from its baseline.
struct Glyph {
  std::uint32_t id = 0;
  char32_t codePoint = 0;  ///< the character drawn: a mathematical letter, a delimiter, the sign of a root
  double x = 0;
  double y = 0;
  double size = 0;  ///< the em at which it is drawn
  Color color;
  Figure figure = noFigure;
};

/// A filled rectangle with its lower left corner: the bar of a fraction or of a root.
struct Rule {
  double x = 0;
  double y = 0;
  double width = 0;
  double height = 0;
  Color color;
  Figure figure = noFigure;
};

/// A line as set, glyphs and rules in drawing order. Doubling the size doubles every figure in it.
struct Layout {
  double width = 0;
  double height = 0;  ///< above the baseline
  double depth = 0;   ///< below the baseline
  std::vector<Glyph> glyphs;
  std::vector<Rule> rules;
  /// The first character that the font lacks, if any; an empty box in errorColor takes its place.
  std::optional<Error> error;
};

/// Sets a line in display style. `size` is the em and positive.
Layout layOut(const List& list, MathFont& font, double size);

}  // namespace tavi::typeset
