#pragma once

#include <cstddef>
#include <string_view>

#include "typeset/parse_tree.h"

namespace tavi::typeset {

struct Command {
  std::string_view name;  ///< without the backslash
  void (*read)(Reader& reader, const CommandInLine& command, List& into);
  char32_t character = 0;  ///< of a symbol
  double mu = 0;           ///< of a space
};

/// A command where it stands; the reader is behind its name.
struct CommandInLine {
  const Command& command;
  std::size_t start = 0;  ///< of the backslash
  std::size_t end = 0;    ///< behind the name
};

/// The command of that name, or nullptr.
const Command* findCommand(std::string_view name);

}  // namespace tavi::typeset
