#include "typeset/compositor.h"

#include <algorithm>
#include <string_view>

#include "typeset/utf8.h"

namespace tavi::typeset {
namespace {

// TeX's table of the blanks between two atoms, a row for each class of the left one: 0 none, 1 thin outside
// scripts, 2 thin in every style, 3 medium and 4 thick outside scripts, - a pair that cannot be.
constexpr std::array<std::string_view, 8> blankTable = {
    "02340001",  // ordinary
    "22-40001",  // operation
    "33--3--3",  // binary
    "44-04004",  // relation
    "00-00000",  // opening
    "02340001",  // closing
    "11-11111",  // punctuation
    "12341011",  // inner
};

// Stands where the font lacks a character: its own sign for that is blank.
constexpr char32_t substituteCharacter = U'□';

// Most lines of a working are set without the list of glyphs having to grow.
constexpr std::size_t usualGlyphs = 16;

double blankInMu(AtomClass left, AtomClass right, Style style) {
  switch (blankTable[static_cast<std::size_t>(left)][static_cast<std::size_t>(right)]) {
    case '1':
      return style.isScript() ? 0 : 3;
    case '2':
      return 3;
    case '3':
      return style.isScript() ? 0 : 4;
    case '4':
      return style.isScript() ? 0 : 5;
    default:
      return 0;
  }
}

bool isSpace(const Atom& atom) {
  return std::holds_alternative<Space>(atom.content);
}

AtomClass classOf(const Atom& atom) {
  if (const auto* symbol = std::get_if<Symbol>(&atom.content)) return symbol->atomClass;
  if (const auto* text = std::get_if<Text>(&atom.content)) return text->atomClass;
  if (std::holds_alternative<Fence>(atom.content)) return AtomClass::inner;
  if (const auto* scripts = std::get_if<Scripts>(&atom.content)) return classOf(scripts->nucleus.front());
  return AtomClass::ordinary;
}

// Where a binary sign has no left operand it is the sign of a number.
bool leavesNoOperand(std::optional<AtomClass> left) {
  using enum AtomClass;
  return !left || left == operation || left == binary || left == relation || left == opening ||
         left == punctuation;
}

bool takesNoOperand(std::optional<AtomClass> right) {
  using enum AtomClass;
  return !right || right == relation || right == closing || right == punctuation;
}

}  // namespace

const Symbol* singleSymbol(const Atom& atom) {
  if (const auto* symbol = std::get_if<Symbol>(&atom.content)) return symbol;
  const auto* group = std::get_if<Group>(&atom.content);
  if (group == nullptr || group->content.size() != 1) return nullptr;
  const Symbol* symbol = singleSymbol(group->content.front());
  return symbol != nullptr && symbol->atomClass == AtomClass::ordinary ? symbol : nullptr;
}

Compositor::Compositor(MathFont& font, double size, Layout& layout)
    : font_(font),
      constants_(font.constants()),
      layout_(layout),
      sizes_{size, size, size * font.constants().scriptPercentScaleDown,
             size * font.constants().scriptScriptPercentScaleDown} {}

void Compositor::move(Mark from, Mark to, double dx, double dy) {
  if (dx == 0 && dy == 0) return;
  for (std::size_t index = from.glyphs; index < to.glyphs; ++index) {
    layout_.glyphs[index].x += dx;
    layout_.glyphs[index].y += dy;
  }
  for (std::size_t index = from.rules; index < to.rules; ++index) {
    layout_.rules[index].x += dx;
    layout_.rules[index].y += dy;
  }
}

void Compositor::addGlyph(std::uint32_t id, char32_t character, double x, double y, Style style) {
  // Written where it stays: a copy has to wait for what it copies, which is a tenth of the time of a line.
  Glyph& glyph = layout_.glyphs.emplace_back();
  glyph.id = id;
  glyph.codePoint = character;
  glyph.x = x;
  glyph.y = y;
  glyph.size = em(1, style);
  glyph.color = color_;
}

void Compositor::addRule(double x, double y, double width, double height) {
  // Blanks such as \! can make an argument narrower than nothing.
  layout_.rules.push_back({.x = x, .y = y, .width = std::max(0.0, width), .height = height, .color = color_});
}

void Compositor::join(Mark from) {
  ++lastFigure_;
  for (std::size_t index = from.glyphs; index < layout_.glyphs.size(); ++index) {
    layout_.glyphs[index].figure = lastFigure_;
  }
  for (std::size_t index = from.rules; index < layout_.rules.size(); ++index) {
    layout_.rules[index].figure = lastFigure_;
  }
}

Extent Compositor::character(char32_t character, double x, Style style, std::uint32_t position) {
  const GlyphMetrics* glyph = &font_.glyph(character, style.shape());
  const bool isMissing = glyph->id == 0;
  if (isMissing) {
    if (!layout_.error) {
      layout_.error =
          Error{.message = "the font has no " + encodeUtf8({&character, 1}), .position = position};
    }
    glyph = &font_.glyph(substituteCharacter, style.shape());
  }
  if (isMissing || character != U' ') addGlyph(glyph->id, character, x, 0, style);
  if (isMissing) layout_.glyphs.back().color = errorColor;
  return {em(glyph->width, style), em(glyph->height, style), em(glyph->depth, style)};
}

Extent Compositor::list(const List& atoms, Style style, bool isFenced) {
  Extent box;
  std::optional<AtomClass> left;
  for (std::size_t index = 0; index < atoms.size(); ++index) {
    const Atom& current = atoms[index];
    if (const auto* space = std::get_if<Space>(&current.content)) {
      box.width += space->set(*this, style).width;
      continue;
    }
    AtomClass atomClass = classOf(current);
    if (atomClass == AtomClass::binary) {
      const auto next =
          std::find_if_not(atoms.begin() + static_cast<std::ptrdiff_t>(index) + 1, atoms.end(), isSpace);
      const auto right = next == atoms.end() ? std::nullopt : std::optional(classOf(*next));
      if (leavesNoOperand(left) || takesNoOperand(right)) atomClass = AtomClass::ordinary;
    }
    if (left) box.width += em(blankInMu(*left, atomClass, style) / 18, style);
    left = atomClass;

    const Mark start = mark();
    const Extent extent = atom(current, style);
    move(start, box.width, 0);
    box.width += extent.width;
    box.height = std::max(box.height, extent.height);
    box.depth = std::max(box.depth, extent.depth);
    const bool isBeforeSymbol =
        index + 1 < atoms.size() && singleSymbol(nucleusOf(atoms[index + 1])) != nullptr;
    if (isBeforeSymbol) box.width += italicCorrection(current, style);
  }
  if (left && isFenced) box.width += em(blankInMu(*left, AtomClass::closing, style) / 18, style);
  return box;
}

double Compositor::italicCorrection(const Atom& atom, Style style) {
  const Symbol* symbol = singleSymbol(atom);
  const bool hasCorrection =
      symbol != nullptr && !symbol->isUpright && symbol->atomClass != AtomClass::opening;
  return hasCorrection ? em(font_.glyph(symbol->drawn, style.shape()).italicCorrection, style) : 0;
}

Extent Compositor::atom(const Atom& atom, Style style) {
  return std::visit([&](const auto& construct) { return construct.set(*this, style); }, atom.content);
}

Layout layOut(const List& list, MathFont& font, double size) {
  Layout layout;
  layout.glyphs.reserve(usualGlyphs);
  const Extent box = Compositor(font, size, layout).list(list, {});
  layout.width = box.width;
  layout.height = box.height;
  layout.depth = box.depth;
  return layout;
}

}  // namespace tavi::typeset
