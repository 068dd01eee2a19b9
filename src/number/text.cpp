#include "number/text.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace tavi {

namespace {

// N to 2N characters by their first and their last N, which may overlap.
template <std::size_t N>
void copyEnds(std::string_view piece, char* to) {
  std::memcpy(to, piece.data(), N);
  std::memcpy(to + piece.size() - N, piece.data() + piece.size() - N, N);
}

// Most pieces are a few characters, for which a call of memcpy costs more than they do. Returns the end.
char* copied(std::string_view piece, char* to) {
  if (piece.size() > 16) {
    std::memcpy(to, piece.data(), piece.size());
  } else if (piece.size() >= 8) {
    copyEnds<8>(piece, to);
  } else if (piece.size() >= 4) {
    copyEnds<4>(piece, to);
  } else if (piece.size() >= 2) {
    copyEnds<2>(piece, to);
  } else if (!piece.empty()) {
    *to = piece.front();
  }
  return to + piece.size();
}

}  // namespace

std::string joined(std::initializer_list<std::string_view> pieces) {
  std::size_t size = 0;
  for (const std::string_view piece : pieces) size += piece.size();
  std::string text(size, '\0');
  char* at = text.data();
  for (const std::string_view piece : pieces) at = copied(piece, at);
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
