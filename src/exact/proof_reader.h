#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "exact/rules.h"
#include "output/string_output.h"

namespace tavi::exact {

/// Whether a line of a working is right: equal sides, equal within what is printed, not to be told, or not
/// so. A line has the last mark of its relations.
enum class Mark : std::uint8_t { isTrue, isRounded, isOpen, isFalse };

/// true, rounded, open or false
std::string_view nameOf(Mark mark);

struct CheckedLine {
  Mark mark = Mark::isOpen;
  Rules rules =
      0;  ///< Of a false line where asked for: by which rules of the working it is right; 0 for none.
};

/// What a working comes to when it is read line by line.
struct Proof {
  std::vector<CheckedLine> lines;
  CheckedLine result;  ///< Of its first result, held to the task itself; open where there is none.
  std::optional<std::size_t> resultLine{};  ///< Where that result stands.
};

/// Reads each line of a working. The first is true. One that begins with a relation, or has none, is held to
/// the last side before it in the chain of input, modified input and steps; any other one to itself. `task`
/// is the task in LaTeX as mathematics writes it, such as `ExactValue::task`. Takes some 50 µs; where a line
/// is false and `isExplained`, up to some milliseconds more.
Proof proofRead(const SolutionSteps& steps, std::string_view task, bool isExplained = false);

}  // namespace tavi::exact
