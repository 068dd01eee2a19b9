#include "input/input_manager.h"

#include <algorithm>
#include <cstddef>

#include "number/fatal_stop.h"
#include "number/text.h"

namespace tavi {

TaviInputManager::TaviInputManager(TaviStringOutput& output, TaviMathOperation& operation)
    : outputHelper(output), operation_(operation) {}

TaviInputManager& TaviInputManager::shared() {
  static TaviInputManager instance(TaviStringOutput::shared(), TaviMathOperation::shared());
  return instance;
}

TermAnalysisResult TaviInputManager::analyse(TypedTask task) {
  TermAnalysisResult result = collect(std::move(task));
  if (!result.errorKey) result.solutionSteps = outputHelper.solutionSteps;
  return result;
}

TermAnalysisResult TaviInputManager::collect(TypedTask task) {
  AnalysisRequest& request = task.request;
  isAnyNumberChanged = false;
  isWithFraction = task.isWithFraction;
  isAllFractionIfOccuredOnce = request.isAllFractionIfOccuredOnce;
  isDecimalEliminationForced = request.isDecimalEliminationForced;
  inputFormatMode = request.inputFormatMode;
  isTagUsed = !request.tags.empty();
  allTextFieldIds = request.fieldIds();
  allTextFieldTexts = std::move(request.texts);
  inputFormat = std::move(request.inputFormat);
  subcategory = std::move(request.subcategory);
  topic = std::move(request.topic);
  allInputs = std::move(task.numbers);
  inputSymbols.clear();
  if (isWithFraction) operation_.withFraction = true;
  if (task.errorKey) return failure(task);

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
  return result;
}

TermAnalysisResult TaviInputManager::failure(const TypedTask& task) const {
  TermAnalysisResult result;
  result.errorKey = task.errorKey;
  result.missingIds.emplace();
  if (isTagUsed) result.missingTags.emplace();
  for (const std::size_t field : task.fieldsAtFault) {
    result.missingIds->push_back(elementAt(allTextFieldIds, field));
    if (isTagUsed) result.missingTags->push_back(elementAt(task.request.tags, field));
  }
  result.isWithFraction = isWithFraction;
  return result;
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
