#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tavi::exact {

/// Words about a value or a working: a key to look them up by, and the LaTeX that takes the places %1, %2, …
/// in them.
struct Sentence {
  std::string_view key;
  std::vector<std::string> formulas{};
};

/// The English words of a key, with the places still in them.
std::string_view englishWords(std::string_view key);

/// `words` with the formulas in their places.
std::string filled(std::string_view words, const std::vector<std::string>& formulas);

inline std::string inEnglish(const Sentence& sentence) {
  return filled(englishWords(sentence.key), sentence.formulas);
}

}  // namespace tavi::exact
