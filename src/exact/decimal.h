#pragma once

#include <optional>
#include <string>

#include "exact/exact_value.h"
#include "exact/value.h"

namespace tavi::exact {

/// The value as a decimal in LaTeX, every digit proved: whole and without a mark where it ends, with its
/// period overlined where that has at most 20 digits, else rounded to nearest in its last place and with
/// \ldots. It has `digits` significant digits or more; at least all before the point. From 10^21 on and below
/// 10^{-7} it is written with a power of ten. Absent with a variable, with a fault, and where the power of
/// ten itself has more than some 10,000 digits.
std::optional<std::string> decimalLatex(const Value& value, int digits);

/// Of a whole number of more than 40 digits the first and last 20.
std::optional<WholeNumber> wholeNumber(const Value& value);

}  // namespace tavi::exact
