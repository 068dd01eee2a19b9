#include "input/input_manager.h"

#include <algorithm>
#include <charconv>

#include "input/term_reader.h"
#include "number/fatal_stop.h"
#include "number/text.h"
#include "output/tavi_error.h"

namespace tavi {

TaviInputManager::TaviInputManager(TaviStringOutput& output, TaviMathOperation& operation)
    : outputHelper(output), operation_(operation) {}

TaviInputManager& TaviInputManager::shared() {
  static TaviInputManager instance(TaviStringOutput::shared(), TaviMathOperation::shared());
  return instance;
}

TermAnalysisResult TaviInputManager::analyse(const AnalysisRequest& request) {
  isAnyNumberChanged = false;
  isWithFraction = false;
  isAllFractionIfOccuredOnce = request.isAllFractionIfOccuredOnce;
  isDecimalEliminationForced = request.isDecimalEliminationForced;
  inputFormatMode = request.inputFormatMode;
  allTextFieldTexts = request.texts;
  inputFormat = request.inputFormat;
  subcategory = request.subcategory;
  topic = request.topic;
  allInputs.clear();
  inputSymbols.clear();

  isTagUsed = !request.tags.empty();
  allTextFieldIds = request.ids;
  if (isTagUsed) {
    allTextFieldIds.clear();
    for (const std::int64_t tag : request.tags) allTextFieldIds.push_back(std::to_string(tag));
  }

  if (const auto error = checkRequiredInputs(request)) return failure(*error);
  if (const auto error = analyseTerms()) return failure(*error);
  if (inputFormatMode == FormatMode::variables) resolveInputSymbols();
  if (request.isInputShown) outputInput(true);
  eliminateDecimals();
  cancelInputs();
  moveDenominatorSigns();
  if (isAnyNumberChanged && inputFormatMode == FormatMode::formula && request.isInputShown)
    outputInput(false);

  TermAnalysisResult result;
  result.allInputs = allInputs;
  result.isWithFraction = isWithFraction;
  result.solutionSteps = outputHelper.solutionSteps;
  return result;
}

TermAnalysisResult TaviInputManager::failure(const InputError& error) const {
  TermAnalysisResult result;
  result.errorKey = error.key;
  result.missingIds = error.ids;
  if (isTagUsed) {
    result.missingTags.emplace();
    for (const std::string& id : error.ids) {
      std::from_chars(id.data(), id.data() + id.size(), result.missingTags->emplace_back());
    }
  }
  result.isWithFraction = isWithFraction;
  return result;
}

std::optional<TaviInputManager::InputError> TaviInputManager::checkRequiredInputs(
    const AnalysisRequest& request) const {
  InputError error{std::string(TaviError::notEnoughInputValues), {}};
  if (!request.requiredIds.empty()) {
    for (std::size_t i = 0; i < allTextFieldIds.size(); ++i) {
      const auto& ids = request.requiredIds;
      const bool isRequired = std::find(ids.begin(), ids.end(), allTextFieldIds[i]) != ids.end();
      if (isRequired && elementAt(allTextFieldTexts, i).empty()) error.ids.push_back(allTextFieldIds[i]);
    }
    return error.ids.empty() ? std::nullopt : std::optional(error);
  }

  const std::size_t needed = request.isEveryFieldRequired ? allTextFieldTexts.size() : request.requiredAmount;
  std::size_t filled = 0;
  for (std::size_t i = 0; i < allTextFieldTexts.size(); ++i) {
    if (allTextFieldTexts[i].empty()) {
      error.ids.push_back(elementAt(allTextFieldIds, i));
    } else {
      ++filled;
    }
    if (filled >= needed) return std::nullopt;
  }
  return error;
}

std::optional<TaviInputManager::InputError> TaviInputManager::analyseTerms() {
  const auto errorAt = [this](std::size_t field, std::string_view key) {
    return InputError{std::string(key), {elementAt(allTextFieldIds, field)}};
  };

  for (std::size_t i = 0; i < allTextFieldTexts.size(); ++i) {
    const auto slashes = std::count(allTextFieldTexts[i].begin(), allTextFieldTexts[i].end(), '/');
    if (slashes == 0) continue;
    isWithFraction = true;
    operation_.withFraction = true;
    if (slashes > 1) return errorAt(i, TaviError::inputParameterError);
  }

  for (std::size_t i = 0; i < allTextFieldTexts.size(); ++i) {
    const auto number = std::make_shared<Digit>();
    if (const auto key = readTerm(allTextFieldTexts[i], *number)) return errorAt(i, *key);
    allInputs.push_back(number);
  }
  return std::nullopt;
}

std::optional<std::string> TaviInputManager::readTerm(const std::string& text, Digit& number) const {
  std::string term = text;
  std::erase_if(term, [](char character) { return character == '(' || character == ')'; });
  const bool isFraction = term.find('/') != std::string::npos;
  const std::vector<std::string_view> pieces = splitDroppingEmpty(term, '/');
  if (isFraction && pieces.size() < 2) return std::string(TaviError::fractionIncomplete);
  if (term.empty()) return std::nullopt;

  SubstringAnalysis numerator = analyseSubstring(std::string(pieces.front()));
  if (numerator.errorKey) return numerator.errorKey;
  number.z = numerator.value;
  number.zConstants = std::move(numerator.constants);
  if (!isFraction && !(isWithFraction && isAllFractionIfOccuredOnce)) {
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

void TaviInputManager::resolveInputSymbols() {
  const std::vector<Symbol>& symbols = TaviFormulaSymbol::shared().symbols;
  for (std::string& line : inputFormat) {
    const std::vector<std::string_view> pieces = splitDroppingEmpty(line, '=');
    if (pieces.empty()) fatalStop("a format line without a symbol");
    const std::string key = replacedAll(pieces.front(), " ", "");
    const auto symbol = std::find_if(symbols.begin(), symbols.end(), [&](const Symbol& candidate) {
      return candidate.subcategory == subcategory && candidate.topic == topic && candidate.key == key;
    });
    if (symbol == symbols.end()) fatalStop("a format line with an unknown symbol");
    if (!key.empty()) line = replacedAll(line, key, symbol->latex);
    inputSymbols.push_back(*symbol);
  }
}

}  // namespace tavi
