#pragma once

#include <array>
#include <cstddef>

#include "typeset/layout.h"
#include "typeset/style.h"

namespace tavi::typeset {

/// The box of something set: its width, and how far it reaches above and below its baseline.
struct Extent {
  double width = 0;
  double height = 0;
  double depth = 0;

  [[nodiscard]] double total() const { return height + depth; }
};

/// Sets a tree into a Layout. Each function sets its construct with the origin at (0, 0) behind what is in
/// the layout already and gives its box; the caller then moves it into place. A function stands in the file
/// of its construct.
class Compositor {
 public:
  Compositor(MathFont& font, double size, Layout& layout);

  /// `isFenced`: a closing delimiter follows behind the list.
  Extent list(const List& atoms, Style style, bool isFenced = false);
  Extent fraction(const Fraction& fraction, Style style);
  Extent radical(const Radical& radical, Style style);
  Extent fence(const Fence& fence, Style style);
  Extent scripts(const Scripts& scripts, Style style);

 private:
  // How much of the layout is set; what comes after it can be moved.
  struct Mark {
    std::size_t glyphs = 0;
    std::size_t rules = 0;
  };
  [[nodiscard]] Mark mark() const { return {layout_.glyphs.size(), layout_.rules.size()}; }
  void move(Mark from, double dx, double dy) { move(from, mark(), dx, dy); }
  void move(Mark from, Mark to, double dx, double dy);

  // The length of a value in ems of the style.
  [[nodiscard]] double em(double value, Style style) const {
    return value * sizes_[static_cast<std::size_t>(style.level)];
  }
  // An em of the whole line: for the two lengths that TeX takes from its page and not from the style.
  [[nodiscard]] double rootEm(double value) const { return value * sizes_.front(); }

  Extent atom(const Atom& atom, Style style);
  Extent symbol(const Symbol& symbol, Style style);
  Extent text(const Text& text, Style style);
  Extent group(const Group& group, Style style);
  // The smallest shape of the delimiter at least `total` tall, with its glyph's baseline, or the bottom of
  // its assembly, at 0. Nothing for the delimiter 0 but its blank.
  Extent delimiter(char32_t character, double total, Style style);
  Extent assembly(const VerticalShapes& shapes, char32_t character, double total, Style style);
  // Sets the character at x on the baseline; `position` is its place in the line, should the font lack it.
  const GlyphMetrics& character(char32_t character, double x, Style style, std::uint32_t position);
  void addGlyph(std::uint32_t id, char32_t character, double x, double y, Style style);
  // What is set since `from` becomes one figure.
  void join(Mark from);
  void addRule(double x, double y, double width, double height);
  [[nodiscard]] double italicCorrection(const Atom& atom, Style style);

  MathFont& font_;
  const MathConstants& constants_;
  Layout& layout_;
  std::array<double, 4> sizes_;  // by StyleLevel
  Color color_;
  Figure lastFigure_ = noFigure;
};

/// The single character an atom comes to, through groups that hold nothing else; nullptr for all others. Such
/// an atom behaves as its character does.
const Symbol* singleSymbol(const Atom& atom);

}  // namespace tavi::typeset
