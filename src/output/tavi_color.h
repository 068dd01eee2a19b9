#pragma once

#include <string_view>

namespace tavi {

/// The colours of the working, as literal LaTeX colour texts. Each has one meaning.
struct TaviColor {
  TaviColor() = delete;

  /// What the step acts on: a minus sign, a power to calculate, a root index to extract.
  static constexpr std::string_view acting = "#ff3333";
  /// The numerator of a fractional exponent or index; the power that undoes a root.
  static constexpr std::string_view numerator = "#5774f7";
  /// The denominator of a fractional exponent or index.
  static constexpr std::string_view denominator = "#bf5afa";
  /// A finished or newly won value.
  static constexpr std::string_view finished = "#009900";
};

}  // namespace tavi
