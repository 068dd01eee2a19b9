#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace tavi {

/// What ends the process when a precondition of the system's own flow is broken: an absent required value,
/// an index out of range, an integer overflow, a double that cannot become an integer. It derives from
/// nothing and nobody catches it, but for a rehearsal that asks beforehand whether a task would end in one.
struct FatalStop {
  std::string reason;
};

[[noreturn]] void fatalStop(std::string_view reason);

/// `value` truncated towards zero. Not finite or outside the signed 64-bit range: fatal stop.
std::int64_t truncatedToInt64(double value);

/// Adds one. At the largest value: fatal stop.
void increment(std::int64_t& counter);

/// The value that must be there. Absent: fatal stop.
template <typename Value>
const Value& required(const std::optional<Value>& value, std::string_view what) {
  if (!value) fatalStop(what);
  return *value;
}

/// The element that must be there. Index out of range: fatal stop.
template <typename Container>
auto& elementAt(Container& container, std::size_t index) {
  if (index >= std::size(container)) fatalStop("index out of range");
  return container[index];
}

}  // namespace tavi
