#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "exact/sentences.h"
#include "input/mode.h"

namespace tavi::exact {

/// What is wrong with the typed texts: a key of `TaviError` and the fields at fault, 0 the first and 1 the
/// second.
struct InputError {
  std::string key;
  std::vector<std::size_t> fields;
};

enum class Kind : std::uint8_t { integer, rational, surd, symbolic, undefined, tooLarge };

/// integer, rational, …
std::string_view nameOf(Kind kind);

/// What a whole number of many digits shows of them.
struct WholeNumber {
  std::string digitCount, firstDigits, lastDigits;
};

/// The value that a task has by the rules of mathematics, however its working ends.
struct ExactValue {
  Kind kind = Kind::undefined;
  std::string task;   ///< The task in LaTeX, with the brackets that it needs.
  std::string latex;  ///< The value; the task where there is none or where it would be too large.
  std::optional<std::string> decimal{};      ///< See `decimalLatex`; absent where a variable remains.
  std::optional<Sentence> reason{};          ///< Why there is no value, or on which condition it holds.
  std::optional<Sentence> note{};            ///< Of an even root: what its sign means.
  std::optional<WholeNumber> wholeNumber{};  ///< Of a whole number of more than 40 digits.
};

/// Significant digits that a decimal has unless told, and at most.
inline constexpr int usualDigits = 15;
inline constexpr int maximumDigits = 1000;

/// Reads the texts by the grammar and with the error keys of the term analysis. What the analysis reads but
/// no exact number stands behind, brackets alone among it, is an inputParameterError, and so is a text of
/// more than 100,000 bytes. Takes 50 ms and 64 MB at most, whatever the texts.
std::variant<ExactValue, InputError> exactValue(Mode mode, std::string_view first, std::string_view second,
                                                int digits = usualDigits);

}  // namespace tavi::exact
