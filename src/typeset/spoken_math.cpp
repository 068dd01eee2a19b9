#include "typeset/spoken_math.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>

#include "typeset/utf8.h"

namespace tavi::typeset {
namespace {

struct Phrase {
  std::string_view key;
  std::string_view english;
};

constexpr auto phrases = std::to_array<Phrase>({
    {"mathPlus", "plus"},
    {"mathMinus", "minus"},
    {"mathPlusMinus", "plus or minus"},
    {"mathTimes", "times"},
    {"mathDividedBy", "divided by"},
    {"mathEquals", "equals"},
    {"mathNotEqual", "is not equal to"},
    {"mathApproximately", "is approximately"},
    {"mathLess", "is less than"},
    {"mathGreater", "is greater than"},
    {"mathLessOrEqual", "is less than or equal to"},
    {"mathGreaterOrEqual", "is greater than or equal to"},
    {"mathInfinity", "infinity"},
    {"mathDegrees", "degrees"},
    {"mathPercent", "percent"},
    {"mathFactorial", "factorial"},
    {"mathFraction", "%1 over %2"},
    {"mathLongFraction", "fraction %1 over %2 end of fraction"},
    {"mathSquareRoot", "square root of %1"},
    {"mathLongSquareRoot", "square root of %1 end of root"},
    {"mathCubeRoot", "cube root of %1"},
    {"mathLongCubeRoot", "cube root of %1 end of root"},
    {"mathRoot", "root with index %1 of %2"},
    {"mathLongRoot", "root with index %1 of %2 end of root"},
    {"mathPower", "%1 to the power of %2"},
    {"mathLongPower", "%1 to the power of %2 end of power"},
    {"mathIndex", "%1 sub %2"},
    {"mathParentheses", "open parenthesis %1 close parenthesis"},
    {"mathBrackets", "open bracket %1 close bracket"},
    {"mathBraces", "open brace %1 close brace"},
    {"mathAbsoluteValue", "absolute value of %1 end of absolute value"},
    {"mathSine", "sine"},
    {"mathCosine", "cosine"},
    {"mathTangent", "tangent"},
    {"mathLogarithm", "logarithm"},
    {"mathNaturalLogarithm", "natural logarithm"},
    {"mathPi", "pi"},
});

struct SpokenSign {
  char32_t character;
  std::string_view key;
};

constexpr auto signs = std::to_array<SpokenSign>({
    {U'+', "mathPlus"},        {U'-', "mathMinus"},          {U'−', "mathMinus"},     {U'±', "mathPlusMinus"},
    {U'*', "mathTimes"},       {U'×', "mathTimes"},          {U'·', "mathTimes"},     {U'⋅', "mathTimes"},
    {U'/', "mathDividedBy"},   {U':', "mathDividedBy"},      {U'÷', "mathDividedBy"}, {U'=', "mathEquals"},
    {U'≠', "mathNotEqual"},    {U'≈', "mathApproximately"},  {U'<', "mathLess"},      {U'>', "mathGreater"},
    {U'≤', "mathLessOrEqual"}, {U'≥', "mathGreaterOrEqual"}, {U'∞', "mathInfinity"},  {U'°', "mathDegrees"},
    {U'%', "mathPercent"},     {U'!', "mathFactorial"},      {U'π', "mathPi"},
});

struct SpokenFunction {
  std::u32string_view name;
  std::string_view key;
};

constexpr auto functions = std::to_array<SpokenFunction>({
    {U"sin", "mathSine"},
    {U"cos", "mathCosine"},
    {U"tan", "mathTangent"},
    {U"log", "mathLogarithm"},
    {U"ln", "mathNaturalLogarithm"},
});

bool isNumeral(char32_t character) {
  return (character >= U'0' && character <= U'9') || character == U'.';
}

std::string filled(std::string text, std::string_view first, std::string_view second = {}) {
  std::string result;
  for (std::size_t index = 0; index < text.size(); ++index) {
    const std::string_view place = std::string_view(text).substr(index, 2);
    if (place == "%1" || place == "%2") {
      result += place == "%1" ? first : second;
      ++index;
    } else {
      result += text[index];
    }
  }
  return result;
}

// Whether a list is over when it is heard to be over: a number, a letter, or one of them in a group.
bool isShort(const List& list) {
  const bool isNumber = std::ranges::all_of(list, [](const Atom& atom) {
    const auto* symbol = std::get_if<Symbol>(&atom.content);
    return std::holds_alternative<Space>(atom.content) || (symbol != nullptr && isNumeral(symbol->source));
  });
  if (isNumber) return true;
  const auto isSpace = [](const Atom& atom) { return std::holds_alternative<Space>(atom.content); };
  const auto first = std::ranges::find_if_not(list, isSpace);
  if (!std::all_of(first + 1, list.end(), isSpace)) return false;
  const auto* group = std::get_if<Group>(&first->content);
  return std::holds_alternative<Symbol>(first->content) || (group != nullptr && isShort(group->content));
}

// The number that a list writes, such as the index of a root.
std::u32string numberOf(const List& list) {
  std::u32string number;
  for (const Atom& atom : list) {
    if (const auto* symbol = std::get_if<Symbol>(&atom.content)) number += symbol->source;
    if (const auto* group = std::get_if<Group>(&atom.content)) number += numberOf(group->content);
  }
  return isShort(list) ? number : std::u32string();
}

class Speaker {
 public:
  explicit Speaker(const PhraseLookup& phrase) : phrase_(phrase) {}

  std::string list(const List& atoms) const {
    std::string words;
    bool isAfterNumeral = false;
    bool isAfterFence = false;
    for (const Atom& atom : atoms) {
      std::string word = std::visit(*this, atom.content);
      if (word.empty()) continue;
      const Atom& base = nucleusOf(atom);
      const auto* symbol = std::get_if<Symbol>(&base.content);
      const bool isInNumber = symbol != nullptr && isNumeral(symbol->source);
      const bool isFence = std::holds_alternative<Fence>(base.content);
      if (isFence && isAfterFence) word.insert(0, phrase_("mathTimes") + " ");
      if (!words.empty() && !(isInNumber && isAfterNumeral)) words += ' ';
      words += word;
      isAfterNumeral = isInNumber && &base == &atom;
      isAfterFence = isFence;
    }
    return words;
  }

  std::string operator()(const Symbol& symbol) const {
    const auto* const sign = std::ranges::find(signs, symbol.source, &SpokenSign::character);
    return sign != signs.end() ? phrase_(sign->key) : encodeUtf8({&symbol.source, 1});
  }
  std::string operator()(const Space&) const { return {}; }
  std::string operator()(const Text& text) const {
    const auto* const function = std::ranges::find(functions, text.characters, &SpokenFunction::name);
    return function != functions.end() ? phrase_(function->key) : encodeUtf8(text.characters);
  }
  std::string operator()(const Group& group) const { return list(group.content); }
  std::string operator()(const Fraction& fraction) const {
    return spoken(fraction, isShort(fraction.numerator) && isShort(fraction.denominator));
  }
  std::string operator()(const Radical& radical) const {
    const bool isBrief = isShort(radical.radicand);
    const std::u32string index = numberOf(radical.index);
    const std::string radicand = list(radical.radicand);
    if (radical.index.empty() || index == U"2") {
      return filled(phrase_(isBrief ? "mathSquareRoot" : "mathLongSquareRoot"), radicand);
    }
    if (index == U"3") return filled(phrase_(isBrief ? "mathCubeRoot" : "mathLongCubeRoot"), radicand);
    return filled(phrase_(isBrief ? "mathRoot" : "mathLongRoot"), list(radical.index), radicand);
  }
  std::string operator()(const Fence& fence) const {
    const std::string inside = list(fence.content);
    switch (fence.opening) {
      case U'|':
        return filled(phrase_("mathAbsoluteValue"), inside);
      case U'[':
        return filled(phrase_("mathBrackets"), inside);
      case U'{':
        return filled(phrase_("mathBraces"), inside);
      default:
        // Parentheses around one number are there for the eye.
        return isShort(fence.content) ? inside : filled(phrase_("mathParentheses"), inside);
    }
  }
  std::string operator()(const Scripts& scripts) const {
    const auto* fraction = std::get_if<Fraction>(&scripts.nucleus.front().content);
    std::string words = fraction != nullptr ? spoken(*fraction, false) : list(scripts.nucleus);
    if (scripts.subscript) words = filled(phrase_("mathIndex"), words, list(*scripts.subscript));
    if (scripts.superscript) {
      words = filled(phrase_(isShort(*scripts.superscript) ? "mathPower" : "mathLongPower"), words,
                     list(*scripts.superscript));
    }
    return words;
  }

 private:
  [[nodiscard]] std::string spoken(const Fraction& fraction, bool isBrief) const {
    return filled(phrase_(isBrief ? "mathFraction" : "mathLongFraction"), list(fraction.numerator),
                  list(fraction.denominator));
  }

  const PhraseLookup& phrase_;
};

}  // namespace

std::string englishPhrase(std::string_view key) {
  const auto* const phrase = std::ranges::find(phrases, key, &Phrase::key);
  return std::string(phrase != phrases.end() ? phrase->english : key);
}

std::string spokenMath(const List& list, const PhraseLookup& phrase) {
  return Speaker(phrase).list(list);
}

}  // namespace tavi::typeset
