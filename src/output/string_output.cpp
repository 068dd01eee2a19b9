#include "output/string_output.h"

#include <utility>

#include "number/fatal_stop.h"
#include "number/text.h"
#include "output/localized_string.h"

namespace tavi {

TaviStringOutput& TaviStringOutput::shared() {
  static TaviStringOutput instance;
  return instance;
}

void TaviStringOutput::addStep(std::string title, std::string latexString) {
  SolutionStep& step = solutionSteps.emplace_back();
  step.title.emplace(std::move(title));
  step.latexString.emplace(std::move(latexString));
}

std::string TaviStringOutput::numberedTitle(std::string_view title) {
  increment(solutionStepCounter);
  return joined({LocalizedString::step.text(), " ", std::to_string(solutionStepCounter), "    ", title});
}

void TaviStringOutput::reset() {
  solutionSteps.clear();
  solutionStepCounter = 0;
}

}  // namespace tavi
