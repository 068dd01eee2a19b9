#include <algorithm>
#include <utility>

#include "typeset/commands.h"
#include "typeset/compositor.h"
#include "typeset/mathml.h"
#include "typeset/reader.h"
#include "typeset/speaker.h"

namespace tavi::typeset {
namespace {

// The delimiter behind `\left` or `\right`: 0 for the invisible one, nothing when there is none.
std::optional<char32_t> readDelimiter(Reader& reader) {
  const auto character = reader.oneOf(U"()[]|.", U"{}");
  return character == U'.' ? char32_t{0} : character;
}

}  // namespace

void Fence::read(Reader& reader, const CommandInLine& command, List& into) {
  const auto opening = readDelimiter(reader);
  if (!opening) return reader.unreadable(into, command.start, command.end, "\\left needs a delimiter");
  const auto openingEnd = reader.position();
  auto content = reader.nested(Until::right);
  if (!content) return reader.unreadable(into, command.start, openingEnd, Reader::tooDeep());
  if (!reader.atRight()) {
    reader.unreadable(into, command.start, openingEnd, "\\left without \\right");
    return append(into, *std::move(content));
  }
  const auto right = reader.position();
  reader.skipCommandName();
  const auto rightEnd = reader.position();
  const auto closing = readDelimiter(reader);
  into.emplace_back().content =
      Fence{.opening = *opening, .closing = closing.value_or(0), .content = *std::move(content)};
  if (!closing) reader.unreadable(into, right, rightEnd, "\\right needs a delimiter");
}

void Fence::readStrayRight(Reader& reader, const CommandInLine& command, List& into) {
  reader.unreadable(into, command.start, command.end, "\\right without \\left");
}

Extent Fence::set(Compositor& compositor, Style style) const {
  // TeX's \delimiterfactor and \delimitershortfall, the second in ems of the line: how much of the inside a
  // fence covers.
  constexpr double delimiterFactor = 0.901;
  constexpr double delimiterShortfall = 0.5;
  const double axis = compositor.em(compositor.constants().axisHeight, style);
  const auto start = compositor.mark();
  Extent box = compositor.list(content, style, true);
  const auto contentEnd = compositor.mark();
  const double half = std::max(box.height - axis, box.depth + axis);
  const double total = std::max(delimiterFactor * 2 * half, 2 * half - compositor.rootEm(delimiterShortfall));

  // Centred on the axis at the given place; gives the width.
  const auto place = [&](char32_t character, double x) {
    const auto delimiterStart = compositor.mark();
    const Extent extent = compositor.delimiter(character, total, style);
    const double up = character == 0 ? 0 : axis + (extent.depth - extent.height) / 2;
    compositor.move(delimiterStart, x, up);
    box.height = std::max(box.height, up + extent.height);
    box.depth = std::max(box.depth, extent.depth - up);
    return extent.width;
  };
  const double openingWidth = place(opening, 0);
  compositor.move(start, contentEnd, openingWidth, 0);
  const double closingWidth = place(closing, openingWidth + box.width);
  box.width += openingWidth + closingWidth;
  return box;
}

std::string Fence::say(const Speaker& speaker) const {
  std::string inside = speaker.list(content);
  switch (opening) {
    case U'|':
      return speaker.phrase({"mathAbsoluteValue", "absolute value of %1 end of absolute value"}, inside);
    case U'[':
      return speaker.phrase({"mathBrackets", "open bracket %1 close bracket"}, inside);
    case U'{':
      return speaker.phrase({"mathBraces", "open brace %1 close brace"}, inside);
    default:
      // Parentheses around one number are there for the eye.
      if (isShort(content)) return inside;
      return speaker.phrase({"mathParentheses", "open parenthesis %1 close parenthesis"}, inside);
  }
}

std::string Fence::mathml() const {
  const auto delimiter = [](char32_t character) {
    return character == 0 ? std::string()
                          : element("mo", escaped({&character, 1}), R"( fence="true" stretchy="true")");
  };
  return element("mrow", delimiter(opening) + mathmlRow(content) + delimiter(closing));
}

}  // namespace tavi::typeset
