#include "number/fatal_stop.h"

#include <limits>

namespace tavi {

void fatalStop(std::string_view reason) {
  throw FatalStop{std::string(reason)};
}

std::int64_t truncatedToInt64(double value) {
  // Both bounds are exact as doubles; the upper one is the first value beyond the range.
  constexpr double lowest = -0x1p63;
  constexpr double beyond = 0x1p63;
  if (!(value >= lowest && value < beyond)) fatalStop("a double that is no 64-bit integer");
  return static_cast<std::int64_t>(value);
}

void increment(std::int64_t& counter) {
  if (counter == std::numeric_limits<std::int64_t>::max()) fatalStop("a counter overflows");
  ++counter;
}

}  // namespace tavi
