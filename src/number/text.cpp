#include "number/text.h"

#include <algorithm>
#include <cstddef>

namespace tavi {

std::string joined(std::initializer_list<std::string_view> pieces) {
  std::size_t size = 0;
  for (const std::string_view piece : pieces) size += piece.size();
  std::string text(size, '\0');
  char* at = text.data();
  for (const std::string_view piece : pieces) at = std::copy(piece.begin(), piece.end(), at);
  return text;
}

std::string replacedAll(std::string_view text, std::string_view pattern, std::string_view replacement) {
  std::string result;
  result.reserve(text.size());
  std::size_t from = 0;
  for (std::size_t at = text.find(pattern); at != std::string_view::npos; at = text.find(pattern, from)) {
    result += text.substr(from, at - from);
    result += replacement;
    from = at + pattern.size();
  }
  result += text.substr(from);
  return result;
}

std::vector<std::string_view> splitDroppingEmpty(std::string_view text, char separator) {
  std::vector<std::string_view> pieces;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(separator), text.size());
    if (end > 0) pieces.push_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return pieces;
}

std::string_view lastPiece(std::string_view text, char separator) {
  while (text.ends_with(separator)) text.remove_suffix(1);
  const std::size_t at = text.rfind(separator);
  return at == std::string_view::npos ? text : text.substr(at + 1);
}

}  // namespace tavi
