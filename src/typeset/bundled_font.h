#pragma once

#include <cstddef>
#include <span>

namespace tavi::typeset {

/// The font file of Latin Modern Math, part of the program.
std::span<const std::byte> bundledMathFont();

}  // namespace tavi::typeset
