#pragma once

#include <string>
#include <string_view>

namespace tavi::typeset {

/// Stands for a byte that is no part of a UTF-8 character (U+FFFD).
inline constexpr char32_t noCharacter = 0xFFFD;

/// Any bytes; each byte that belongs to no well-formed character gives noCharacter.
std::u32string decodeUtf8(std::string_view bytes);

/// Of well-formed characters.
std::string encodeUtf8(std::u32string_view characters);

}  // namespace tavi::typeset
