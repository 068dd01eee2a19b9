#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tavi {

// Numbers to texts and back. Nothing here depends on the C or C++ locale.

/// The shortest decimal text that reads back as the same double, always with a point: 3.0, 0.5, -0.0. From
/// 1e16 in size and below 0.0001 the exponent form with at least two exponent digits: 1e+16, 1.5e-05.
/// Infinities and not-a-number are inf, -inf, nan.
std::string doubleText(double value);

/// printf's "%g": six significant digits.
std::string generalText(double value);

/// Reads a text of `generalText` back; inf and nan, too.
double readGeneralText(std::string_view text);

/// What is left of a number by that way there and back: six significant digits.
double roundedToSixDigits(double value);

/// The double that a whole text stands for, by the rules of strtod in the POSIX locale: signs, a trailing
/// point and a missing integer part are accepted, digits beyond the range give infinity or zero. Absent for
/// anything else, for an empty text and for one that starts with white space.
std::optional<double> readNumber(const std::string& text);

/// Plain decimal notation without grouping, with at most `maximumFractionDigits` (not negative) digits behind
/// the point and no trailing zeros. Rounds half to even on the shortest digits that read back as the same
/// double, so that 2443895.82 prints so. NaN, ∞ and -∞ for what is no finite number; a negative that rounds
/// to zero is -0.
std::string decimalText(double value, int maximumFractionDigits);

}  // namespace tavi
