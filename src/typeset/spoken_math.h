#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "typeset/parse_tree.h"

namespace tavi::typeset {

/// A phrase of the spoken mathematics, %1 and %2 in the places of its parts.
struct Phrase {
  std::string_view key;  ///< of its translations: "mathFraction"
  std::string_view english;
};

/// Gives a phrase in the language of the user.
using PhraseLookup = std::function<std::string(const Phrase& phrase)>;

std::string englishPhrase(const Phrase& phrase);

/// What a line says, as words for assistive technology: "square root of 2", "3 over 4", "2 to the power of
/// 3".
std::string spokenMath(const List& list, const PhraseLookup& phrase = englishPhrase);

}  // namespace tavi::typeset
