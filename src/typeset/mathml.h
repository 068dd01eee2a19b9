#pragma once

#include <string>
#include <string_view>

#include "typeset/parse_tree.h"

namespace tavi::typeset {

/// A line as a MathML 3 document fragment in display style, UTF-8, for word processors and browsers. What
/// could not be read stands in it as text.
std::string mathml(const List& line);

// For the constructs.

/// The atoms as exactly one element; digits that stand side by side are one number. A row that begins with a
/// relation has an empty left side, without which word processors miss one.
std::string mathmlRow(const List& atoms);

/// The element as the base of scripts: what is neither a sign nor a row of several becomes such a row.
/// Otherwise word processors set the exponent of a fraction at its denominator.
std::string mathmlBase(const List& nucleus);

/// The element around its content; attributes begin with a blank.
std::string element(std::string_view name, std::string_view content, std::string_view attributes = {});

/// The characters as XML may hold them.
std::string escaped(std::u32string_view characters);

/// Whether the character is part of a number: a digit or the decimal point.
bool isNumeral(char32_t character);

}  // namespace tavi::typeset
