#include "input/typed_task.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "input/term_reader.h"
#include "number/fatal_stop.h"
#include "number/text.h"
#include "output/string_output.h"
#include "output/tavi_error.h"

namespace tavi {

namespace {

constexpr std::string_view emptyField = " ? ";
constexpr std::string_view missingNumber = "\\color{#8e8e93}{□}";

std::string placeholder(std::size_t field) {
  return "%" + std::to_string(field);
}

std::string formatOf(std::optional<Mode> mode) {
  if (!mode) return "";
  return *mode == Mode::power ? "%1^{%0}" : "\\sqrt[%0]{%1}";
}

// The fields that are still to be filled; absent when enough are. None at all are not enough, even of none.
std::optional<std::vector<std::size_t>> missingFields(const AnalysisRequest& request) {
  const auto& texts = request.texts;
  std::vector<std::size_t> missing;
  if (!request.requiredIds.empty()) {
    const auto& required = request.requiredIds;
    const std::vector<std::string> ids = request.fieldIds();
    for (std::size_t i = 0; i < ids.size(); ++i) {
      const bool isRequired = std::find(required.begin(), required.end(), ids[i]) != required.end();
      if (isRequired && elementAt(texts, i).empty()) missing.push_back(i);
    }
    return missing.empty() ? std::nullopt : std::optional(missing);
  }

  const std::size_t needed = request.isEveryFieldRequired ? texts.size() : request.requiredAmount;
  std::size_t filled = 0;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    if (texts[i].empty()) {
      missing.push_back(i);
    } else {
      ++filled;
    }
    if (filled >= needed) return std::nullopt;
  }
  return missing;
}

// The number of one text, or the key of what is wrong with it.
std::optional<std::string> readTerm(const std::string& text, bool isFractionForced, Digit& number) {
  std::string term = text;
  std::erase_if(term, [](char character) { return character == '(' || character == ')'; });
  const bool isFraction = term.find('/') != std::string::npos;
  const auto pieces = isFraction ? splitDroppingEmpty(term, '/') : std::vector<std::string_view>();
  if (isFraction && pieces.size() < 2) return std::string(TaviError::fractionIncomplete);
  if (term.empty()) return std::nullopt;

  SubstringAnalysis numerator = analyseSubstring(isFraction ? std::string(pieces.front()) : term);
  if (numerator.errorKey) return numerator.errorKey;
  number.z = numerator.value;
  number.zConstants = std::move(numerator.constants);
  if (!isFraction && !isFractionForced) {
    number.zVariable = std::move(numerator.variable);
    number.powerOfZVariable = numerator.power;
    return std::nullopt;
  }

  SubstringAnalysis denominator = analyseSubstring(isFraction ? std::string(pieces.back()) : "1");
  if (denominator.errorKey) return denominator.errorKey;
  if (denominator.value == 0.0) return std::string(TaviError::inputZeroInDenominator);
  number.n = required(denominator.value, "a denominator without a value");
  number.nConstants = std::move(denominator.constants);
  // The variable of a fraction is the one below the bar, and it stands above it from here on: 3/x is 3x,
  // while x/3 has no variable.
  number.zVariable = std::move(denominator.variable);
  number.powerOfZVariable = denominator.power;
  return std::nullopt;
}

std::ptrdiff_t bars(std::string_view text) {
  return std::count(text.begin(), text.end(), '/');
}

// Keeps what a number is typed with; anything else could mean something in LaTeX.
std::string sideAsTyped(std::string_view side) {
  constexpr std::string_view typed = "0123456789.-xyze";
  std::string latex;
  for (const char character : replacedAll(side, piConstant().key, "\x01")) {
    if (character == '\x01') latex += "\\pi ";
    if (typed.find(character) != std::string_view::npos) latex += character;
  }
  if (latex.empty()) return std::string(missingNumber);
  return latex == "-" ? latex + std::string(missingNumber) : latex;
}

std::string asTyped(std::string_view text) {
  const std::size_t bar = text.find('/');
  if (bar == std::string_view::npos) return sideAsTyped(text);
  if (bars(text) == 1) {
    return joined(
        {"\\frac{", sideAsTyped(text.substr(0, bar)), "}{", sideAsTyped(text.substr(bar + 1)), "}"});
  }
  return joined({sideAsTyped(text.substr(0, bar)), "/", asTyped(text.substr(bar + 1))});
}

std::string fieldLatex(const std::string& text) {
  Digit number;
  const bool isRead = !text.empty() && bars(text) <= 1 && !readTerm(text, false, number);
  const bool isWritable = isRead && number.z && std::isfinite(number.n);
  return isWritable ? TaviStringOutput::digitLatex(number, {.keepSigns = true}) : asTyped(text);
}

}  // namespace

std::vector<std::string> AnalysisRequest::fieldIds() const {
  if (tags.empty()) return ids;
  std::vector<std::string> figures;
  for (const std::int64_t tag : tags) figures.push_back(std::to_string(tag));
  return figures;
}

TypedTask typedTask(AnalysisRequest request) {
  TypedTask task{.request = std::move(request)};
  const auto& texts = task.request.texts;
  const auto failed = [&task](std::string_view key, std::vector<std::size_t> fields) {
    task.errorKey = key;
    task.fieldsAtFault = std::move(fields);
    return task;
  };

  if (auto missing = missingFields(task.request)) {
    return failed(TaviError::notEnoughInputValues, *std::move(missing));
  }
  for (std::size_t i = 0; i < texts.size(); ++i) {
    task.isWithFraction |= bars(texts[i]) > 0;
    if (bars(texts[i]) > 1) return failed(TaviError::inputParameterError, {i});
  }
  task.numbers.reserve(texts.size());
  const bool isFractionForced = task.isWithFraction && task.request.isAllFractionIfOccuredOnce;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    const auto number = std::make_shared<Digit>();
    if (const auto key = readTerm(texts[i], isFractionForced, *number)) return failed(*key, {i});
    task.numbers.push_back(number);
  }
  return task;
}

TypedTask typedTask(std::optional<Mode> mode, std::string first, std::string second) {
  if (first.empty() && mode == Mode::root) first = "2";
  return typedTask({.texts = {std::move(first), std::move(second)},
                    .inputFormat = {formatOf(mode)},
                    .isAllFractionIfOccuredOnce = false,
                    .isDecimalEliminationForced = true,
                    .requiredAmount = 2});
}

std::string taskLatex(std::string_view format, std::span<const std::shared_ptr<Digit>> numbers,
                      bool keepSigns) {
  std::string line(format);
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    const Digit& number = *numbers[i];
    line =
        replacedAll(line, placeholder(i),
                    number.z ? TaviStringOutput::digitLatex(number, {.keepSigns = keepSigns}) : emptyField);
  }
  return line;
}

std::string typedLatex(const TypedTask& task) {
  std::string line = elementAt(task.request.inputFormat, 0);
  for (std::size_t i = 0; i < task.request.texts.size(); ++i) {
    line = replacedAll(line, placeholder(i), fieldLatex(task.request.texts[i]));
  }
  return line;
}

}  // namespace tavi
