#include "input/term_reader.h"

#include <algorithm>
#include <cstddef>

#include "number/number_text.h"
#include "number/text.h"
#include "output/tavi_error.h"

namespace tavi {

namespace {

std::size_t occurrences(std::string_view text, std::string_view pattern) {
  std::size_t count = 0;
  for (std::size_t at = text.find(pattern); at != std::string_view::npos;
       at = text.find(pattern, at + pattern.size())) {
    ++count;
  }
  return count;
}

// Both finders answer with a part of the analysis: what they found, or an error key.

SubstringAnalysis findNaturalConstants(std::string_view text) {
  const NaturalConstant pi = piConstant();
  const NaturalConstant euler = eulerConstant();
  const std::size_t piCount = occurrences(text, pi.key);
  const std::size_t eulerCount = occurrences(text, euler.key);
  if (piCount + eulerCount > 1) {
    return {.errorKey = std::string(TaviError::toManyNaturalConstantsInSubstring)};
  }
  const auto& allowed = naturalConstantList();
  if (piCount + eulerCount == 1 && std::none_of(allowed.begin(), allowed.end(), [text](const auto& constant) {
        return text.ends_with(constant.key);
      })) {
    return {.errorKey = std::string(TaviError::naturalConstantInWrongPositionOfSubstring)};
  }
  SubstringAnalysis found;
  if (piCount > 0) found.constants.push_back(pi);
  if (eulerCount > 0) found.constants.push_back(euler);
  return found;
}

SubstringAnalysis findVariable(std::string_view text) {
  SubstringAnalysis found;
  std::size_t count = 0;
  for (const std::string_view variable : variableList) {
    const std::size_t own = occurrences(text, variable);
    if (own > 0) found.variable = variable;
    count += own;
  }
  if (count > 1) return {.errorKey = std::string(TaviError::toManyVariablesInSubstring)};
  // A misplaced variable shares its key with a misplaced constant.
  if (count == 1 && !text.ends_with(found.variable)) {
    return {.errorKey = std::string(TaviError::naturalConstantInWrongPositionOfSubstring)};
  }
  found.power = count == 1 ? 1.0 : 0.0;
  return found;
}

// The number that is left when `symbol` goes: 1 where it stood alone or behind a minus.
std::string withoutSymbol(const std::string& text, std::string_view symbol) {
  const bool isAlone = text == symbol || text == joined({"-", symbol});
  return replacedAll(text, symbol, isAlone ? "1" : "");
}

}  // namespace

SubstringAnalysis analyseSubstring(const std::string& text) {
  // Most are plain numbers: all symbols come behind the digits in the order of the bytes.
  if (std::ranges::none_of(text, [](unsigned char byte) { return byte > '9'; })) {
    SubstringAnalysis plain{.value = readNumber(text)};
    if (!plain.value) plain.errorKey = TaviError::inputParameterError;
    return plain;
  }
  SubstringAnalysis analysis = findNaturalConstants(text);
  if (analysis.errorKey) return analysis;
  std::string number = text;
  for (const NaturalConstant& constant : analysis.constants) number = withoutSymbol(number, constant.key);

  SubstringAnalysis found = findVariable(text);
  if (found.errorKey) return found;
  if (!found.variable.empty()) number = withoutSymbol(number, found.variable);
  analysis.variable = found.variable;
  analysis.power = found.power;

  analysis.value = readNumber(number);
  if (!analysis.value) analysis.errorKey = TaviError::inputParameterError;
  return analysis;
}

}  // namespace tavi
