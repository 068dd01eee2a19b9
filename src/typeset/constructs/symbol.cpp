#include <algorithm>
#include <array>
#include <string_view>

#include "typeset/commands.h"
#include "typeset/compositor.h"
#include "typeset/mathml.h"
#include "typeset/reader.h"
#include "typeset/speaker.h"
#include "typeset/utf8.h"

namespace tavi::typeset {
namespace {

struct ClassRange {
  char32_t first;
  char32_t last;
  AtomClass atomClass;
};

using enum AtomClass;

// The classes of Unicode's mathematical characters; what is not listed is ordinary.
constexpr auto classRanges = std::to_array<ClassRange>({
    {U'!', U'!', closing},       {U'(', U'(', opening},      {U')', U')', closing},
    {U'+', U'+', binary},        {U',', U',', punctuation},  {U';', U';', punctuation},
    {U'<', U'>', relation},      {U'[', U'[', opening},      {U']', U']', closing},
    {U'{', U'{', opening},       {U'}', U'}', closing},      {U'±', U'±', binary},
    {U'·', U'·', binary},        {U'×', U'×', binary},       {U'÷', U'÷', binary},
    {0x2020, 0x2022, binary},    {0x2190, 0x21FF, relation}, {0x2208, 0x220D, relation},
    {0x220F, 0x2211, operation}, {0x2212, 0x2219, binary},   {0x221D, 0x221D, relation},
    {0x2223, 0x2226, relation},  {0x2227, 0x222A, binary},   {0x222B, 0x2233, operation},
    {0x2236, 0x2237, relation},  {0x2238, 0x2238, binary},   {0x2239, 0x223D, relation},
    {0x223E, 0x223E, binary},    {0x2240, 0x2240, binary},   {0x2241, 0x228B, relation},
    {0x228C, 0x228E, binary},    {0x228F, 0x2292, relation}, {0x2293, 0x22A1, binary},
    {0x22A2, 0x22A3, relation},  {0x22A6, 0x22B8, relation}, {0x22BA, 0x22BD, binary},
    {0x22C0, 0x22C3, operation}, {0x22C4, 0x22C7, binary},   {0x22C8, 0x22C8, relation},
    {0x22C9, 0x22CC, binary},    {0x22CD, 0x22CD, relation}, {0x22CE, 0x22CF, binary},
    {0x22D0, 0x22D1, relation},  {0x22D2, 0x22D3, binary},   {0x22D4, 0x22EE, relation},
    {0x22F0, 0x22FF, relation},  {0x2308, 0x2308, opening},  {0x2309, 0x2309, closing},
    {0x230A, 0x230A, opening},   {0x230B, 0x230B, closing},  {0x27E8, 0x27E8, opening},
    {0x27E9, 0x27E9, closing},   {0x27F0, 0x297F, relation},
});

AtomClass classOf(char32_t character) {
  const auto* const range = std::ranges::lower_bound(classRanges, character, {}, &ClassRange::last);
  return range != classRanges.end() && range->first <= character ? range->atomClass : ordinary;
}

// Unicode's alphabets of mathematical italic letters.
char32_t italic(char32_t character) {
  if (character == U'h') return 0x210E;  // encoded before the alphabet, as Planck's constant
  if (character >= U'A' && character <= U'Z') return 0x1D434 + (character - U'A');
  if (character >= U'a' && character <= U'z') return 0x1D44E + (character - U'a');
  if (character >= U'α' && character <= U'ω') return 0x1D6FC + (character - U'α');
  constexpr std::u32string_view variants = U"ϵϑϰϕϱϖ";
  const auto variant = variants.find(character);
  return variant == std::u32string_view::npos ? character : 0x1D716 + static_cast<char32_t>(variant);
}

struct SpokenSigns {
  std::u32string_view characters;
  Phrase phrase;
};

// Any other character says itself.
constexpr auto spokenSigns = std::to_array<SpokenSigns>({
    {U"+", {"mathPlus", "plus"}},
    {U"-−", {"mathMinus", "minus"}},
    {U"±", {"mathPlusMinus", "plus or minus"}},
    {U"*×·⋅", spokenTimes},
    {U"/:÷", {"mathDividedBy", "divided by"}},
    {U"=", {"mathEquals", "equals"}},
    {U"≠", {"mathNotEqual", "is not equal to"}},
    {U"≈", {"mathApproximately", "is approximately"}},
    {U"<", {"mathLess", "is less than"}},
    {U">", {"mathGreater", "is greater than"}},
    {U"≤", {"mathLessOrEqual", "is less than or equal to"}},
    {U"≥", {"mathGreaterOrEqual", "is greater than or equal to"}},
    {U"∞", {"mathInfinity", "infinity"}},
    {U"°", {"mathDegrees", "degrees"}},
    {U"%", {"mathPercent", "percent"}},
    {U"!", {"mathFactorial", "factorial"}},
    {U"π", {"mathPi", "pi"}},
});

}  // namespace

Symbol Symbol::of(char32_t character, bool isUpright) {
  switch (character) {
    case U'-':
      return {.source = character, .drawn = U'−', .atomClass = binary};
    case U'*':
      return {.source = character, .drawn = U'∗', .atomClass = binary};
    case U':':
      return {.source = character, .drawn = U'∶', .atomClass = relation};
    default:
      return {.source = character,
              .drawn = isUpright ? character : italic(character),
              .atomClass = classOf(character),
              .isUpright = isUpright};
  }
}

void Symbol::read(Reader& reader, const CommandInLine& command, List& into) {
  reader.symbol(into, command.command.character, command.start);
}

Extent Symbol::set(Compositor& compositor, Style style) const {
  return compositor.character(drawn, 0, style, position);
}

std::string Symbol::say(const Speaker& speaker) const {
  const auto* const sign = std::ranges::find_if(spokenSigns, [this](const SpokenSigns& signs) {
    return signs.characters.find(source) != std::u32string_view::npos;
  });
  return sign != spokenSigns.end() ? speaker.phrase(sign->phrase) : encodeUtf8({&source, 1});
}

std::string Symbol::mathml() const {
  if (isNumeral(source)) return element("mn", escaped({&source, 1}));
  const bool isIdentifier = atomClass == ordinary && (drawn != source || Reader::isLetter(source));
  if (isIdentifier) return element("mi", escaped({&source, 1}), isUpright ? R"( mathvariant="normal")" : "");
  return element("mo", escaped({&drawn, 1}));
}

}  // namespace tavi::typeset
