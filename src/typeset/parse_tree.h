#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace tavi::typeset {

struct Rgb {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;

  friend bool operator==(const Rgb&, const Rgb&) = default;
};

/// Without a value: the colour of the surrounding text, whatever the appearance makes of it.
using Color = std::optional<Rgb>;

/// The colour of what could not be read or has no glyph.
inline constexpr Rgb errorColor{0xd3, 0x2f, 0x2f};

/// TeX's classes of atoms; they decide the blanks between neighbours.
enum class AtomClass : std::uint8_t {
  ordinary,
  operation,
  binary,
  relation,
  opening,
  closing,
  punctuation,
  inner
};

// The constructs of a line: each type below is what one is made of. What it does stands in the file of its
// name in constructs/: `read` puts it into a list when its command is met, `set` lays it out, `say` gives its
// words, `mathml` writes it as MathML.

class Reader;
struct CommandInLine;
class Compositor;
struct Extent;
struct Style;
class Speaker;

struct Atom;
using List = std::vector<Atom>;

/// One character of the mathematics.
struct Symbol {
  char32_t source = 0;  ///< as typed, or what the command stands for: x, π, -
  char32_t drawn = 0;   ///< the character whose glyph is set: mathematical italic x, minus sign
  AtomClass atomClass = AtomClass::ordinary;
  bool isUpright = false;      ///< asked for by `\mathrm`; such letters have no italic correction
  std::uint32_t position = 0;  ///< index of the character in the line

  /// How `character` is set in mathematics: letters and small Greek letters become mathematical italic,
  /// unless `isUpright`; a hyphen becomes a minus sign, a colon the sign of a ratio.
  static Symbol of(char32_t character, bool isUpright);

  static void read(Reader& reader, const CommandInLine& command, List& into);
  Extent set(Compositor& compositor, Style style) const;
  [[nodiscard]] std::string say(const Speaker& speaker) const;
  [[nodiscard]] std::string mathml() const;
};

/// A blank of the writer's; it stands between atoms without parting them.
struct Space {
  double mu = 0;  ///< eighteenths of the em of the style

  static void read(Reader& reader, const CommandInLine& command, List& into);
  Extent set(Compositor& compositor, Style style) const;
  static std::string say(const Speaker& speaker);
  [[nodiscard]] std::string mathml() const;
};

/// Upright running text: `\text{…}`, the name of a function, or a piece of the line that could not be read.
struct Text {
  std::u32string characters;
  AtomClass atomClass = AtomClass::ordinary;
  bool isUnreadable = false;
  std::uint32_t position = 0;

  static void read(Reader& reader, const CommandInLine& command, List& into);
  static void readFunction(Reader& reader, const CommandInLine& command, List& into);
  Extent set(Compositor& compositor, Style style) const;
  [[nodiscard]] std::string say(const Speaker& speaker) const;
  [[nodiscard]] std::string mathml() const;
};

/// `{…}`, `\mathrm{…}` and `\color{…}{…}`: one ordinary atom.
struct Group {
  List content;
  Color color = std::nullopt;

  static void readUpright(Reader& reader, const CommandInLine& command, List& into);
  static void readColored(Reader& reader, const CommandInLine& command, List& into);
  Extent set(Compositor& compositor, Style style) const;
  [[nodiscard]] std::string say(const Speaker& speaker) const;
  [[nodiscard]] std::string mathml() const;
};

struct Fraction {
  List numerator;
  List denominator;

  static void read(Reader& reader, const CommandInLine& command, List& into);
  Extent set(Compositor& compositor, Style style) const;
  /// `hasScripts`: where it ends is said, for what follows belongs to the whole.
  [[nodiscard]] std::string say(const Speaker& speaker, bool hasScripts = false) const;
  [[nodiscard]] std::string mathml() const;
};

struct Radical {
  List index;  ///< empty for a square root
  List radicand;

  static void read(Reader& reader, const CommandInLine& command, List& into);
  Extent set(Compositor& compositor, Style style) const;
  [[nodiscard]] std::string say(const Speaker& speaker) const;
  [[nodiscard]] std::string mathml() const;
};

/// A bar over its content: the period of a decimal.
struct Overline {
  List content;

  static void read(Reader& reader, const CommandInLine& command, List& into);
  Extent set(Compositor& compositor, Style style) const;
  [[nodiscard]] std::string say(const Speaker& speaker) const;
  [[nodiscard]] std::string mathml() const;
};

/// `\left … \right`; the delimiter 0 is the invisible one, written as a point.
struct Fence {
  char32_t opening = 0;
  char32_t closing = 0;
  List content;

  static void read(Reader& reader, const CommandInLine& command, List& into);
  static void readStrayRight(Reader& reader, const CommandInLine& command, List& into);
  Extent set(Compositor& compositor, Style style) const;
  [[nodiscard]] std::string say(const Speaker& speaker) const;
  [[nodiscard]] std::string mathml() const;
};

/// A nucleus, always exactly one atom, with an exponent, an index or both.
struct Scripts {
  List nucleus;
  std::optional<List> superscript;
  std::optional<List> subscript;

  /// Reads `^` or `_`, which stands at the reader's place, onto the last atom.
  static void read(Reader& reader, List& into);
  Extent set(Compositor& compositor, Style style) const;
  [[nodiscard]] std::string say(const Speaker& speaker) const;
  [[nodiscard]] std::string mathml() const;
};

struct Atom {
  std::variant<Symbol, Space, Text, Group, Fraction, Radical, Overline, Fence, Scripts> content;
};

/// The atom that carries the scripts, or the atom itself.
inline const Atom& nucleusOf(const Atom& atom) {
  const auto* scripts = std::get_if<Scripts>(&atom.content);
  return scripts != nullptr ? scripts->nucleus.front() : atom;
}

/// What is wrong with a line, and where.
struct Error {
  std::string message;
  std::size_t position = 0;  ///< index of the character, from 0

  /// The message with the place, counted from 1: "unknown command \foo at character 3".
  [[nodiscard]] std::string text() const { return message + " at character " + std::to_string(position + 1); }
};

/// A line as read. A faulty line is read as far as it goes, and its first fault is told.
struct Formula {
  List list;
  std::optional<Error> error;
};

}  // namespace tavi::typeset
