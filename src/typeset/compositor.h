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

/// Sets a tree into a Layout. What sets something puts it behind what is in the layout already, with its
/// origin at (0, 0), and gives its box; who asked for it then moves it into place.
class Compositor {
 public:
  Compositor(MathFont& font, double size, Layout& layout);

  [[nodiscard]] const MathConstants& constants() const { return constants_; }
  /// The length of a value in ems of the style.
  [[nodiscard]] double em(double value, Style style) const {
    return value * sizes_[static_cast<std::size_t>(style.level)];
  }
  /// An em of the whole line: for the lengths that TeX takes from its page and not from the style.
  [[nodiscard]] double rootEm(double value) const { return value * sizes_.front(); }

  /// `isFenced`: a closing delimiter follows behind the list.
  Extent list(const List& atoms, Style style, bool isFenced = false);
  Extent atom(const Atom& atom, Style style);
  /// The character at `x` on the baseline; `position` is its place in the line, should the font lack it.
  Extent character(char32_t character, double x, Style style, std::uint32_t position);
  /// The smallest shape of the delimiter at least `total` tall, with its glyph's baseline, or the bottom of
  /// its assembly, at 0. Nothing for the delimiter 0 but its blank.
  Extent delimiter(char32_t character, double total, Style style);
  /// A bar with its lower left corner.
  void addRule(double x, double y, double width, double height);

  /// How much of the layout is set; what comes after it can be moved.
  struct Mark {
    std::size_t glyphs = 0;
    std::size_t rules = 0;
  };
  [[nodiscard]] Mark mark() const { return {layout_.glyphs.size(), layout_.rules.size()}; }
  void move(Mark from, double dx, double dy) { move(from, mark(), dx, dy); }
  void move(Mark from, Mark to, double dx, double dy);
  /// What is set since `from` becomes one figure.
  void join(Mark from);

  /// The colour of what is set next.
  [[nodiscard]] Color color() const { return color_; }
  void setColor(Color color) { color_ = color; }

  /// What a letter leans over its width; 0 for all other atoms.
  [[nodiscard]] double italicCorrection(const Atom& atom, Style style);

 private:
  Extent assembly(const VerticalShapes& shapes, char32_t character, double total, Style style);
  void addGlyph(std::uint32_t id, char32_t character, double x, double y, Style style);

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
