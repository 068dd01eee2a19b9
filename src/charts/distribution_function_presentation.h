#pragma once

#include <array>
#include <string>

namespace tavi {

/// The distribution function of a single trial as a formula in three lines behind a brace.
struct DistributionFunctionPresentationView {
  /// `p` is the height of the step between 0 and 1.
  explicit DistributionFunctionPresentationView(double p);

  // LaTeX each.
  std::string labelLeft = "F(X) = ";
  std::string labelMid = "\\{";
  std::array<std::string, 3> values;  ///< Top down.
  std::array<std::string, 3> ranges{"\\quad x<0", "\\quad 0 \\le x < 1", "\\quad 1 \\le x"};

  static constexpr double braceSize = 46;
};

}  // namespace tavi
