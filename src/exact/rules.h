#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "input/mode.h"

namespace tavi::exact {

/// What a working does otherwise than mathematics, as a set of bits. A line that is false and becomes true
/// when it is read by some of these rules is false because of them.
using Rules = std::uint16_t;

namespace rule {
inline constexpr Rules zeroToTheZero = 1U << 0U;
inline constexpr Rules infinity = 1U << 1U;
inline constexpr Rules zero = 1U << 2U;
inline constexpr Rules pi = 1U << 3U;
inline constexpr Rules variable = 1U << 4U;
inline constexpr Rules symbolInExponent = 1U << 5U;
inline constexpr Rules brackets = 1U << 6U;
inline constexpr Rules secondSolution = 1U << 7U;
inline constexpr Rules expansion = 1U << 8U;
inline constexpr Rules copies = 1U << 9U;
inline constexpr Rules denominator = 1U << 10U;
inline constexpr Rules overflow = 1U << 11U;
inline constexpr Rules places = 1U << 12U;
}  // namespace rule

/// A kind of rule, with a task of whose working a line is false because of it.
struct RuleKind {
  Rules rule;
  std::string_view key;  ///< Of its sentence.
  Mode mode;
  std::string_view first, second;
};

/// All of them, a bit each.
std::span<const RuleKind> ruleKinds();

/// The keys of the sentences about some of them.
std::vector<std::string_view> sentenceKeys(Rules rules);

}  // namespace tavi::exact
