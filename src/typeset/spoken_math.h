#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "typeset/parse_tree.h"

namespace tavi::typeset {

/// Gives the phrase of a key in the language of the user, %1 and %2 in the places of its parts.
using PhraseLookup = std::function<std::string(std::string_view key)>;

/// The English phrase of a key: "%1 over %2" of "mathFraction". A key without a phrase gives itself.
std::string englishPhrase(std::string_view key);

/// What a line says, as words for assistive technology: "square root of 2", "3 over 4", "2 to the power of
/// 3".
std::string spokenMath(const List& list, const PhraseLookup& phrase = englishPhrase);

}  // namespace tavi::typeset
