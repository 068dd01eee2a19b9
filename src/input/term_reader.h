#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "number/digit.h"

namespace tavi {

/// One side of a fraction, or a whole term, as read. With `errorKey` present all other fields are to be
/// ignored.
struct SubstringAnalysis {
  std::optional<double> value{};
  std::vector<NaturalConstant> constants{};
  std::string variable{};
  double power = 0.0;  ///< 1.0 with a variable, 0.0 without.
  std::optional<std::string> errorKey{};
};

/// Reads a text without "/" and brackets: a number, or a multiple of one natural constant or of one variable,
/// which stands last. A constant or variable alone, also behind a minus, counts as its multiple by 1 or -1.
SubstringAnalysis analyseSubstring(const std::string& text);

}  // namespace tavi
