#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "number/digit.h"

namespace tavi {

/// One step of a solution: a line of text over a line of LaTeX. Steps written here have a title and a LaTeX
/// line, either of which may be the empty text.
struct SolutionStep {
  std::optional<std::string> title;
  std::optional<std::string> latexString;
  std::optional<std::string> messageString;  ///< Shown in place of the formula when present.

  friend bool operator==(const SolutionStep&, const SolutionStep&) = default;
};

using SolutionSteps = std::vector<SolutionStep>;

/// How `TaviStringOutput::digitLatex` writes a number; the defaults are what the solver's lines use.
struct DigitStyle {
  std::string_view unit = {};                ///< Added behind, after one blank.
  std::optional<bool> withBrackets = false;  ///< Absent: only where the text starts with a minus.
  bool forceFraction = false;                ///< A fraction even for denominator 1.
  bool keepSigns = false;  ///< Signs of numerator and denominator as they are, and no zero limit.
  int maximumFractionDigits = 10;
};

/// How `TaviStringOutput::numberLatex` writes a value; the defaults are what the solver's lines use.
struct NumberStyle {
  std::string_view unit = {};  ///< Added behind, after one blank.
  std::span<const NaturalConstant> constants = {};
  std::string_view variable = {};
  int maximumFractionDigits = 10;
  bool convertToInfinity = true;  ///< Above 1e12 in size prints as infinity.
  bool noBrackets = false;        ///< Negative numbers without parentheses.
};

/// Collects the steps of a solution while a calculation runs, and writes numbers as LaTeX.
class TaviStringOutput {
 public:
  TaviStringOutput() = default;
  static TaviStringOutput& shared();

  void addStep(std::string title, std::string latexString);

  /// Counts one more numbered step and returns its title line, such as "Step 3    Extract a root".
  std::string numberedTitle(std::string_view title);

  /// No steps, and the numbering starts afresh.
  void reset();

  /// `digit` as LaTeX. A value below 1e-10 in size is 0, beyond 1e12 infinity; the denominator is shortened
  /// to six significant digits. `z` absent, or a denominator to write that is no finite number: fatal stop.
  static std::string digitLatex(const Digit& digit, const DigitStyle& style = {});

  /// `value` as LaTeX, a negative one in plain parentheses. The limits of `digitLatex` hold.
  static std::string numberLatex(double value, const NumberStyle& style = {});

  /// The variables of `digit` with their powers, behind one blank where they stand in no fraction. Absent
  /// when it has none.
  static std::optional<std::string> variableLatex(const Digit& digit);

  /// `digit` as a fraction whose parts are both divided by `divisor` times the `constants`.
  static std::string cancelledFractionLatex(const Digit& digit, std::span<const NaturalConstant> constants,
                                            double divisor);

  SolutionSteps solutionSteps;           ///< Oldest first.
  std::int64_t solutionStepCounter = 0;  ///< Numbered steps so far.
};

}  // namespace tavi
