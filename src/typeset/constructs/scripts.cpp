#include <algorithm>
#include <utility>

#include "typeset/compositor.h"
#include "typeset/mathml.h"
#include "typeset/reader.h"
#include "typeset/speaker.h"

namespace tavi::typeset {

void Scripts::read(Reader& reader, List& into) {
  const auto start = reader.position();
  const bool isSuper = reader.at(U'^');
  const std::string sign = isSuper ? "^" : "_";
  reader.skip();
  const auto fail = [&](std::string message) {
    reader.unreadable(into, start, start + 1, std::move(message));
  };
  if (into.empty() || std::holds_alternative<Space>(into.back().content)) {
    return fail(sign + " has nothing before it");
  }
  auto* scripts = std::get_if<Scripts>(&into.back().content);
  if (scripts != nullptr && (isSuper ? scripts->superscript : scripts->subscript)) {
    return fail("second " + sign + " on the same base");
  }
  auto content = reader.argument();
  if (!content) return fail(sign + " has nothing after it");
  if (scripts == nullptr) {
    List nucleus;
    nucleus.push_back(std::move(into.back()));
    into.back() = {Scripts{.nucleus = std::move(nucleus), .superscript = {}, .subscript = {}}};
    scripts = std::get_if<Scripts>(&into.back().content);
  }
  (isSuper ? scripts->superscript : scripts->subscript) = std::move(content);
}

Extent Scripts::set(Compositor& compositor, Style style) const {
  const MathConstants& constants = compositor.constants();
  const auto em = [&](double value) { return compositor.em(value, style); };
  const Atom& base = nucleus.front();
  const bool isSingle = singleSymbol(base) != nullptr;
  Extent box = compositor.atom(base, style);
  const double baseWidth = box.width;
  // A character has its scripts at fixed heights; anything else has them at its own edges.
  double up = isSingle ? 0 : box.height - em(constants.superscriptBaselineDropMax);
  double down = isSingle ? 0 : box.depth + em(constants.subscriptBaselineDropMin);

  const auto superscriptStart = compositor.mark();
  const Extent above = superscript ? compositor.list(*superscript, style.superscript()) : Extent{};
  const auto subscriptStart = compositor.mark();
  const Extent below = subscript ? compositor.list(*subscript, style.subscript()) : Extent{};

  if (superscript) {
    up = std::max({up,
                   em(style.isCramped ? constants.superscriptShiftUpCramped : constants.superscriptShiftUp),
                   above.depth + em(constants.superscriptBottomMin)});
  }
  if (subscript) {
    down = std::max(down, em(constants.subscriptShiftDown));
    if (!superscript) down = std::max(down, below.height - em(constants.subscriptTopMax));
  }
  if (superscript && subscript) {
    const double gap = (up - above.depth) - (below.height - down);
    const double lowering = em(constants.subSuperscriptGapMin) - gap;
    if (lowering > 0) {
      down += lowering;
      const double bottomMax = em(constants.superscriptBottomMaxWithSubscript);
      const double lift = std::max(0.0, bottomMax - (up - above.depth));
      up += lift;
      down -= lift;
    }
  }

  const double spaceAfter = em(constants.spaceAfterScript);
  if (superscript) {
    const double start = baseWidth + compositor.italicCorrection(base, style);
    compositor.move(superscriptStart, subscriptStart, start, up);
    box.width = std::max(box.width, start + above.width + spaceAfter);
    box.height = std::max(box.height, up + above.height);
    box.depth = std::max(box.depth, above.depth - up);
  }
  if (subscript) {
    compositor.move(subscriptStart, baseWidth, -down);
    box.width = std::max(box.width, baseWidth + below.width + spaceAfter);
    box.height = std::max(box.height, below.height - down);
    box.depth = std::max(box.depth, down + below.depth);
  }
  return box;
}

std::string Scripts::say(const Speaker& speaker) const {
  constexpr Phrase index{"mathIndex", "%1 sub %2"};
  constexpr Phrase power{"mathPower", "%1 to the power of %2"};
  constexpr Phrase longPower{"mathLongPower", "%1 to the power of %2 end of power"};
  const auto* fraction = std::get_if<Fraction>(&nucleus.front().content);
  std::string words = fraction != nullptr ? fraction->say(speaker, true) : speaker.list(nucleus);
  if (subscript) words = speaker.phrase(index, words, speaker.list(*subscript));
  if (superscript) {
    words = speaker.phrase(isShort(*superscript) ? power : longPower, words, speaker.list(*superscript));
  }
  return words;
}

std::string Scripts::mathml() const {
  const std::string base = mathmlBase(nucleus);
  if (superscript && subscript)
    return element("msubsup", base + mathmlRow(*subscript) + mathmlRow(*superscript));
  if (superscript) return element("msup", base + mathmlRow(*superscript));
  return element("msub", base + mathmlRow(*subscript));
}

}  // namespace tavi::typeset
