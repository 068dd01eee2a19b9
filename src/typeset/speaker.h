#pragma once

#include <string>
#include <string_view>

#include "typeset/parse_tree.h"
#include "typeset/spoken_math.h"

namespace tavi::typeset {

/// Said by the signs of a product, and between fences that are multiplied without one.
inline constexpr Phrase spokenTimes{"mathTimes", "times"};

/// Says a tree in the phrases of a language.
class Speaker {
 public:
  explicit Speaker(const PhraseLookup& lookUp) : lookUp_(lookUp) {}

  [[nodiscard]] std::string list(const List& atoms) const;
  /// The phrase with `first` and `second` in place of %1 and %2.
  [[nodiscard]] std::string phrase(const Phrase& phrase, std::string_view first = {},
                                   std::string_view second = {}) const;

 private:
  const PhraseLookup& lookUp_;
};

/// Whether a list is over when it is heard to be over: a number, a letter, or one of them in a group.
bool isShort(const List& list);

}  // namespace tavi::typeset
