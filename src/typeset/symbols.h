#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "typeset/parse_tree.h"

namespace tavi::typeset {

enum class CommandKind : std::uint8_t {
  symbol,
  function,
  space,
  fraction,
  root,
  left,
  right,
  color,
  text,
  upright
};

struct Command {
  std::string_view name;  ///< without the backslash
  CommandKind kind;
  char32_t symbol = 0;  ///< of the kind symbol
  double mu = 0;        ///< of the kind space
};

/// The command of that name, or nullptr.
const Command* findCommand(std::string_view name);

/// How `character` is set in mathematics: which glyph, and of which class. Letters and small Greek letters
/// become mathematical italic, unless `isUpright`; a hyphen becomes a minus sign, a colon the sign of a
/// ratio.
Symbol symbolFor(char32_t character, bool isUpright);

/// `#rgb`, `#rrggbb`, black, red, green, blue or gray.
std::optional<Rgb> colorFor(std::u32string_view text);

}  // namespace tavi::typeset
