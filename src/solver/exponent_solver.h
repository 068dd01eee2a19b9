#pragma once

#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "input/mode.h"
#include "number/digit.h"
#include "number/math_operation.h"
#include "output/string_output.h"

namespace tavi {

/// What a calculation came to: the steps and the task in LaTeX, or the key of what is wrong with the input
/// and the identifiers of the fields at fault. A present `errorKey` marks failure.
struct CalculationOutcome {
  std::optional<std::string> errorKey{};
  std::optional<std::vector<std::string>> errorFieldIds{};
  std::optional<SolutionSteps> solutionSteps{};
  std::optional<std::string> latexString{};
};

/// Thrown when a power would be written out with more copies of its base than `expansionLimit`.
struct ExpansionTooLong {
  std::int64_t copies = 0;
};

/// The solver of powers and roots, made afresh for each calculation.
class TaviExponentSolver {
 public:
  explicit TaviExponentSolver(TaviStringOutput& collector = TaviStringOutput::shared(),
                              TaviMathOperation& arithmetic = TaviMathOperation::shared());

  // No caller here, as steps are read where they are collected.
  /// Solves "first text over second text": exponent and base of a power, index (2 by default) and radicand of
  /// a root; without a mode it runs the analysis alone. Writes the steps into the collector, which the caller
  /// has emptied.
  CalculationOutcome calculate(const std::optional<std::string>& firstText, std::string_view firstId,
                               const std::optional<std::string>& secondText, std::string_view secondId,
                               std::optional<Mode> mode);

  /// As `calculate`, but the steps are left in the collector alone.
  CalculationOutcome collect(const std::optional<std::string>& firstText, std::string_view firstId,
                             const std::optional<std::string>& secondText, std::string_view secondId,
                             std::optional<Mode> mode);

  TaviMathOperation& operation;
  TaviStringOutput& output;
  std::optional<std::vector<std::shared_ptr<Digit>>> allInputs;

  /// The most copies of a base that a power is written out with; beyond it `ExpansionTooLong` is thrown.
  /// Without a limit the expansion of a large exponent ends in std::bad_alloc.
  std::int64_t expansionLimit = std::numeric_limits<std::int64_t>::max();

 private:
  void calculatePower();
  void calculateRoot();

  // A root still open around what is calculated under it.
  struct RootFrame {
    std::string open, close;
    std::string around(std::string_view radicand) const;
  };
  static RootFrame rootFrame(double n);

  // The work that powers and roots share: `base` to the positive exponent z/n, first the power z, then the
  // root n, then the result. Raising replaces `base`.
  void solveExponent(const Digit& exponent, std::shared_ptr<Digit>& base, std::string_view task);
  void writePower(const Digit& exponent, std::shared_ptr<Digit>& base, const RootFrame& root);
  bool writeRoot(const Digit& exponent, Digit& base, const RootFrame& root);
  void writeResult(const Digit& exponent, const Digit& base, std::string_view task);

  // The LaTeX of the task as typed: the line of the first step.
  std::string task() const;
  void addNumberedStep(std::string_view title, std::string latexString);
};

}  // namespace tavi
