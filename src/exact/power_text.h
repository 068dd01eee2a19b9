#pragma once

#include <span>
#include <string>

#include "exact/numbers.h"

namespace tavi::exact {

/// A natural number above 0 and how often it is a factor, at least 0 times.
struct Factor {
  Integer base;
  Integer exponent;
};

/// The product of the powers in decimal digits. A million digits take some 13 ms.
std::string powerText(std::span<const Factor> factors);

}  // namespace tavi::exact
