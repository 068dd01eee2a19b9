#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "input/mode.h"
#include "number/digit.h"

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

  /// The identifiers of the fields: the tags in figures, or the ids.
  std::vector<std::string> fieldIds() const;
};

/// A task as it stands typed: the numbers of its fields, or what is wrong with them.
struct TypedTask {
  AnalysisRequest request;
  std::vector<std::shared_ptr<Digit>> numbers{};  ///< Of the fields up to the first one at fault.
  std::optional<std::string> errorKey{};
  std::vector<std::size_t> fieldsAtFault{};
  bool isWithFraction = false;  ///< A field holds a "/".
};

/// Reads the fields of a request. It writes nothing and never stops.
TypedTask typedTask(AnalysisRequest request);

/// Reads exponent and base of a power, or index (2 where it is empty) and radicand of a root; the request
/// that it makes names no fields.
TypedTask typedTask(std::optional<Mode> mode, std::string first, std::string second);

/// The numbers in their places of a format line, as LaTeX. A number that cannot be written is a fatal stop.
std::string taskLatex(std::string_view format, std::span<const std::shared_ptr<Digit>> numbers,
                      bool keepSigns);

/// The task of a mode in LaTeX as its working will begin. A field that cannot be read or written stands as it
/// is typed, with a square for each number that is still missing.
std::string typedLatex(const TypedTask& task);

}  // namespace tavi
