#include <algorithm>
#include <utility>

#include "typeset/commands.h"
#include "typeset/compositor.h"
#include "typeset/mathml.h"
#include "typeset/reader.h"
#include "typeset/speaker.h"

namespace tavi::typeset {
namespace {

// The number that a list writes, such as an index that is said by a word of its own.
std::u32string numberOf(const List& list) {
  std::u32string number;
  for (const Atom& atom : list) {
    if (const auto* symbol = std::get_if<Symbol>(&atom.content)) number += symbol->source;
    if (const auto* group = std::get_if<Group>(&atom.content)) number += numberOf(group->content);
  }
  return isShort(list) ? number : std::u32string();
}

}  // namespace

void Radical::read(Reader& reader, const CommandInLine& command, List& into) {
  List index;
  auto end = command.end;
  reader.skipBlanks();
  if (reader.at(U'[')) {
    reader.skip();
    const auto inside = reader.position();
    auto content = reader.nested(Until::bracket);
    if (!content) return reader.unreadable(into, command.start, inside, Reader::tooDeep());
    if (!reader.at(U']')) {
      reader.unreadable(into, command.start, inside, "[ without ]");
      return append(into, *std::move(content));
    }
    reader.skip();
    index = *std::move(content);
    end = reader.position();
  }
  auto radicand = reader.argument();
  if (!radicand) return reader.unreadable(into, command.start, end, "\\sqrt needs an argument");
  into.emplace_back().content = Radical{.index = std::move(index), .radicand = *std::move(radicand)};
}

Extent Radical::set(Compositor& compositor, Style style) const {
  const MathConstants& constants = compositor.constants();
  const auto start = compositor.mark();
  const Extent inside = compositor.list(radicand, style.cramped());
  const auto insideEnd = compositor.mark();

  const double thickness = compositor.em(constants.radicalRuleThickness, style);
  double gap = compositor.em(
      style.isDisplay() ? constants.radicalDisplayStyleVerticalGap : constants.radicalVerticalGap, style);
  const double needed = inside.total() + gap + thickness;
  const Extent sign = compositor.delimiter(U'√', needed, style);
  if (sign.total() > needed) gap += (sign.total() - needed) / 2;
  const double ruleTop = inside.height + gap + thickness;
  const double signBottom = ruleTop - sign.total();
  compositor.move(insideEnd, 0, ruleTop - sign.height);
  compositor.move(start, insideEnd, sign.width, 0);
  compositor.addRule(sign.width, ruleTop - thickness, inside.width, thickness);
  compositor.join(insideEnd);
  Extent box{.width = sign.width + inside.width,
             .height = ruleTop + compositor.em(constants.radicalExtraAscender, style),
             .depth = std::max(inside.depth, -signBottom)};
  if (index.empty()) return box;

  const auto rootEnd = compositor.mark();
  const Extent degree = compositor.list(index, {StyleLevel::scriptscript});
  const double before = compositor.em(constants.radicalKernBeforeDegree, style);
  const double after = compositor.em(constants.radicalKernAfterDegree, style);
  const double signStart = std::max(0.0, before + degree.width + after);
  // The baseline is raised, not the bottom: a fraction reaches into the sign, as it does in TeX.
  const double raise = signBottom + constants.radicalDegreeBottomRaisePercent * sign.total();
  compositor.move(start, rootEnd, signStart, 0);
  compositor.move(rootEnd, before, raise);
  box.width += signStart;
  box.height = std::max(box.height, raise + degree.height);
  box.depth = std::max(box.depth, degree.depth - raise);
  return box;
}

std::string Radical::say(const Speaker& speaker) const {
  constexpr Phrase square{"mathSquareRoot", "square root of %1"};
  constexpr Phrase longSquare{"mathLongSquareRoot", "square root of %1 end of root"};
  constexpr Phrase cube{"mathCubeRoot", "cube root of %1"};
  constexpr Phrase longCube{"mathLongCubeRoot", "cube root of %1 end of root"};
  constexpr Phrase other{"mathRoot", "root with index %1 of %2"};
  constexpr Phrase longOther{"mathLongRoot", "root with index %1 of %2 end of root"};
  const bool isBrief = isShort(radicand);
  const std::string inside = speaker.list(radicand);
  const std::u32string number = numberOf(index);
  if (index.empty() || number == U"2") return speaker.phrase(isBrief ? square : longSquare, inside);
  if (number == U"3") return speaker.phrase(isBrief ? cube : longCube, inside);
  return speaker.phrase(isBrief ? other : longOther, speaker.list(index), inside);
}

std::string Radical::mathml() const {
  if (index.empty()) return element("msqrt", mathmlRow(radicand));
  return element("mroot", mathmlRow(radicand) + mathmlRow(index));
}

}  // namespace tavi::typeset
