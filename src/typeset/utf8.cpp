#include "typeset/utf8.h"

#include <array>
#include <cstdint>

namespace tavi::typeset {
namespace {

struct Decoded {
  char32_t character = noCharacter;
  std::size_t length = 1;
};

Decoded decodeOne(std::string_view bytes) {
  const auto byte = [&](std::size_t index) { return static_cast<std::uint8_t>(bytes[index]); };
  const std::uint8_t lead = byte(0);
  if (lead < 0x80) return {.character = lead};
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4 || bytes.size() < length) return {};
  char32_t character = lead & (0xFFU >> (length + 1));
  for (std::size_t index = 1; index < length; ++index) {
    if ((byte(index) & 0xC0) != 0x80) return {};
    character = (character << 6) | (byte(index) & 0x3FU);
  }
  constexpr std::array<char32_t, 5> shortest = {0, 0, 0x80, 0x800, 0x10000};
  const bool isSurrogate = character >= 0xD800 && character <= 0xDFFF;
  if (character < shortest[length] || character > 0x10FFFF || isSurrogate) return {};
  return {.character = character, .length = length};
}

}  // namespace

std::u32string decodeUtf8(std::string_view bytes) {
  std::u32string characters(bytes.size(), U'\0');
  std::size_t count = 0;
  while (!bytes.empty()) {
    const Decoded decoded = decodeOne(bytes);
    characters[count++] = decoded.character;
    bytes.remove_prefix(decoded.length);
  }
  characters.resize(count);
  return characters;
}

std::string encodeUtf8(std::u32string_view characters) {
  std::string bytes;
  bytes.reserve(characters.size());
  for (const char32_t character : characters) {
    const auto tail = [&](int shift) {
      bytes.push_back(static_cast<char>(0x80 | ((character >> shift) & 0x3F)));
    };
    if (character < 0x80) {
      bytes.push_back(static_cast<char>(character));
    } else if (character < 0x800) {
      bytes.push_back(static_cast<char>(0xC0 | (character >> 6)));
      tail(0);
    } else if (character < 0x10000) {
      bytes.push_back(static_cast<char>(0xE0 | (character >> 12)));
      tail(6);
      tail(0);
    } else {
      bytes.push_back(static_cast<char>(0xF0 | (character >> 18)));
      tail(12);
      tail(6);
      tail(0);
    }
  }
  return bytes;
}

}  // namespace tavi::typeset
