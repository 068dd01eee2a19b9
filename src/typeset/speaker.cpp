#include "typeset/speaker.h"

#include <algorithm>

#include "typeset/mathml.h"

namespace tavi::typeset {
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

std::string Speaker::list(const List& atoms) const {
  std::string words;
  bool isAfterNumeral = false;
  bool isAfterFence = false;
  for (const Atom& atom : atoms) {
    std::string word =
        std::visit([this](const auto& construct) { return construct.say(*this); }, atom.content);
    if (word.empty()) continue;
    const Atom& base = nucleusOf(atom);
    const auto* symbol = std::get_if<Symbol>(&base.content);
    const bool isInNumber = symbol != nullptr && isNumeral(symbol->source);
    const bool isFence = std::holds_alternative<Fence>(base.content);
    if (isFence && isAfterFence) word.insert(0, phrase(spokenTimes) + " ");
    if (!words.empty() && !(isInNumber && isAfterNumeral)) words += ' ';
    words += word;
    isAfterNumeral = isInNumber && &base == &atom;
    isAfterFence = isFence;
  }
  return words;
}

std::string Speaker::phrase(const Phrase& phrase, std::string_view first, std::string_view second) const {
  const std::string text = lookUp_(phrase);
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

std::string englishPhrase(const Phrase& phrase) {
  return std::string(phrase.english);
}

std::string spokenMath(const List& list, const PhraseLookup& phrase) {
  return Speaker(phrase).list(list);
}

}  // namespace tavi::typeset
