#include <algorithm>
#include <array>
#include <utility>

#include "typeset/commands.h"
#include "typeset/compositor.h"
#include "typeset/mathml.h"
#include "typeset/reader.h"
#include "typeset/speaker.h"
#include "typeset/utf8.h"

namespace tavi::typeset {
namespace {

struct SpokenFunction {
  std::u32string_view name;
  Phrase phrase;
};

constexpr auto spokenFunctions = std::to_array<SpokenFunction>({
    {U"sin", {"mathSine", "sine"}},
    {U"cos", {"mathCosine", "cosine"}},
    {U"tan", {"mathTangent", "tangent"}},
    {U"log", {"mathLogarithm", "logarithm"}},
    {U"ln", {"mathNaturalLogarithm", "natural logarithm"}},
});

// Running text without its inner braces and the backslashes of escaped characters.
std::u32string withoutMarkup(std::u32string_view raw) {
  std::u32string plain;
  for (std::size_t index = 0; index < raw.size(); ++index) {
    if (raw[index] == U'{' || raw[index] == U'}') continue;
    if (raw[index] == U'\\' && index + 1 < raw.size() && !Reader::isLetter(raw[index + 1])) ++index;
    plain.push_back(raw[index]);
  }
  return plain;
}

}  // namespace

void Text::read(Reader& reader, const CommandInLine& command, List& into) {
  const auto characters = reader.rawArgument();
  if (!characters) {
    return reader.unreadable(into, command.start, command.end, "\\text needs an argument in braces");
  }
  if (std::ranges::any_of(*characters, Reader::isControl)) {
    return reader.unreadable(into, command.start, reader.position(), "unreadable character");
  }
  into.emplace_back().content =
      Text{.characters = withoutMarkup(*characters), .position = static_cast<std::uint32_t>(command.start)};
}

void Text::readFunction(Reader& /*reader*/, const CommandInLine& command, List& into) {
  const std::string_view name = command.command.name;
  into.emplace_back().content = Text{.characters = std::u32string(name.begin(), name.end()),
                                     .atomClass = AtomClass::operation,
                                     .position = static_cast<std::uint32_t>(command.start)};
}

Extent Text::set(Compositor& compositor, Style style) const {
  const Color outer = compositor.color();
  if (isUnreadable) compositor.setColor(errorColor);
  Extent box;
  for (const char32_t character : characters) {
    const Extent next = compositor.character(character, box.width, style, position);
    box.width += next.width;
    box.height = std::max(box.height, next.height);
    box.depth = std::max(box.depth, next.depth);
  }
  compositor.setColor(outer);
  return box;
}

std::string Text::say(const Speaker& speaker) const {
  const auto* const function = std::ranges::find(spokenFunctions, characters, &SpokenFunction::name);
  return function != spokenFunctions.end() ? speaker.phrase(function->phrase) : encodeUtf8(characters);
}

std::string Text::mathml() const {
  return element(atomClass == AtomClass::operation ? "mi" : "mtext", escaped(characters));
}

}  // namespace tavi::typeset
