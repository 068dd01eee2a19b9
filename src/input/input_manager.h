#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "number/digit.h"
#include "number/math_operation.h"
#include "output/catalogues.h"
#include "output/string_output.h"

namespace tavi {

/// How the format lines are read: one line for the whole task with a placeholder per field, or one line per
/// field of the form symbol = value.
enum class FormatMode { formula, variables };

/// What `TaviInputManager::analyse` is asked. `%0`, `%1`, … in the format stand for the fields.
struct AnalysisRequest {
  std::vector<std::string> texts;    ///< One per field.
  std::vector<std::int64_t> tags{};  ///< Identify the fields when not empty,
  std::vector<std::string> ids{};    ///< else these do.
  std::vector<std::string> inputFormat{};
  bool isInputShown = true;  ///< The given task becomes a step.
  /// Every field is read as a fraction as soon as one holds a "/".
  bool isAllFractionIfOccuredOnce = true;
  /// Decimals become fractions even where no fraction is involved.
  bool isDecimalEliminationForced = false;
  FormatMode inputFormatMode = FormatMode::formula;
  std::string subcategory{};  ///< Where the symbols of `variables` mode stand in their catalogue.
  std::string topic{};
  std::size_t requiredAmount = 0;  ///< How many fields must be filled.
  bool isEveryFieldRequired = false;
  std::vector<std::string> requiredIds{};  ///< If not empty, exactly these fields must be filled.
};

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
  static TaviInputManager& shared();

  /// Reads the fields; overwrites whatever an earlier call left here. The collector is expected to be empty.
  /// A field of brackets only passes the check for emptiness and ends in a fatal stop.
  TermAnalysisResult analyse(const AnalysisRequest& request);

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
  // What is wrong, and in which fields.
  struct InputError {
    std::string key;
    std::vector<std::string> ids;
  };

  std::optional<InputError> checkRequiredInputs(const AnalysisRequest& request) const;
  std::optional<InputError> analyseTerms();
  // The number of one text, or the key of what is wrong with it.
  std::optional<std::string> readTerm(const std::string& text, Digit& number) const;
  void resolveInputSymbols();
  TermAnalysisResult failure(const InputError& error) const;

  // Normalisation, in the order in which it runs.
  void outputInput(bool keepSigns);
  void eliminateDecimals();
  void cancelInputs();
  void moveDenominatorSigns();

  void writeExpansions(const std::vector<std::string>& lines);
  void rewriteVariableSteps(const std::vector<std::string>& lines,
                            const std::vector<std::size_t>& changedIndices);
  std::string unitLatex(std::size_t field) const;

  TaviMathOperation& operation_;
};

}  // namespace tavi
