#pragma once

#include <optional>
#include <string>

#include "exact/exact_value.h"
#include "exact/value.h"

namespace tavi::exact {

struct WrittenValue {
  Kind kind;
  std::string latex;
};

/// A value without a fault in its final form: lowest terms, the largest power taken out of a root of least
/// index, no root and no negative exponent below the bar. A tower is written by its caller. Absent when a
/// number in it would be too large.
std::optional<WrittenValue> written(const Value& value);

/// The symbols with their exponents, those with a negative one below the bar: x^{2}, \frac{x}{y}.
std::string latexOf(const Exponents& exponents);

}  // namespace tavi::exact
