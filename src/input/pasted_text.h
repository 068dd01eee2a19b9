#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tavi {

/// What a text from elsewhere says, written as the keypad would type it.
struct PastedText {
  std::string number;                     ///< Its minus, if any, stands in front.
  std::optional<std::string> exponent{};  ///< Where the text is a power and `number` its base.

  friend bool operator==(const PastedText&, const PastedText&) = default;
};

/// Reads a UTF-8 text: a number, a fraction, a mixed number or a power, with the signs of print or of plain
/// text, a decimal point or comma, digits in groups of three, powers of ten. Absent where the text is
/// anything else or can be read in two ways.
std::optional<PastedText> readPasted(std::string_view text);

}  // namespace tavi
