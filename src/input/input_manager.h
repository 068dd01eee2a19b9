#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "input/typed_task.h"
#include "number/digit.h"
#include "number/math_operation.h"
#include "output/catalogues.h"
#include "output/string_output.h"

namespace tavi {

/// The numbers of the fields, or the key of what is wrong and the fields at fault.
struct TermAnalysisResult {
  std::optional<std::vector<std::shared_ptr<Digit>>> allInputs;
  std::optional<std::string> errorKey;
  std::optional<std::vector<std::int64_t>> missingTags;
  std::optional<std::vector<std::string>> missingIds;
  bool isWithFraction = false;
  std::optional<SolutionSteps> solutionSteps;
};

/// Turns field texts into numbers, normalises these and writes the opening steps of the working.
class TaviInputManager {
 public:
  TaviInputManager(TaviStringOutput& output, TaviMathOperation& operation);
  static TaviInputManager& shared();  // No caller here.

  /// Reads the fields; overwrites whatever an earlier call left here. The collector is expected to be empty.
  /// A field of brackets only passes the check for emptiness and ends in a fatal stop.
  TermAnalysisResult analyse(AnalysisRequest request) { return analyse(typedTask(std::move(request))); }

  /// The same for a task that is read already.
  TermAnalysisResult analyse(TypedTask task);

  /// The same without a copy of the steps, which are in the collector.
  TermAnalysisResult collect(TypedTask task);

  TaviStringOutput& outputHelper;
  std::vector<std::string> stringInputs;
  bool isTagUsed = false;
  std::vector<std::string> allTextFieldIds;
  std::vector<std::shared_ptr<Digit>> allInputs;
  std::vector<std::string> allTextFieldPlaceholder;
  std::vector<std::string> inputFormat;
  std::vector<Symbol> inputSymbols;
  std::vector<std::string> allTextFieldTexts;
  std::string subcategory;
  std::string topic;
  FormatMode inputFormatMode = FormatMode::formula;
  bool isAllFractionIfOccuredOnce = true;
  bool isDecimalEliminationForced = false;
  bool isWithFraction = false;      ///< A field holds a "/", or a decimal was eliminated.
  bool isAnyNumberChanged = false;  ///< Normalisation changed a number.
  Digit digit;

 private:
  TermAnalysisResult failure(const TypedTask& task) const;
  void resolveInputSymbols();

  // Normalisation, in the order in which it runs.
  void outputInput(bool keepSigns);
  void eliminateDecimals();
  void cancelInputs();
  void moveDenominatorSigns();

  // A field whose decimals became a fraction, and what says so.
  struct DecimalElimination {
    std::size_t field;
    std::string latex;
  };
  void writeExpansions(std::vector<DecimalElimination> eliminations);
  void rewriteVariableSteps(const std::vector<DecimalElimination>& eliminations);
  std::string unitLatex(std::size_t field) const;

  TaviMathOperation& operation_;
};

}  // namespace tavi
