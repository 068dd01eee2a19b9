#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace tavi {

/// The pieces one after the other.
std::string joined(std::initializer_list<std::string_view> pieces);

/// `text` with every occurrence of `pattern` (not empty) replaced, from the left and without overlap.
std::string replacedAll(std::string_view text, std::string_view pattern, std::string_view replacement);

/// The non-empty pieces of `text` between separators; views into `text`.
std::vector<std::string_view> splitDroppingEmpty(std::string_view text, char separator);

/// The last non-empty piece of `text` between separators; empty if there is none.
std::string_view lastPiece(std::string_view text, char separator);

}  // namespace tavi
