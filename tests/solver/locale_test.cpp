#include <clocale>
#include <locale>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "generated_task.h"
#include "number/fatal_stop.h"
#include "solution/display_latex.h"

namespace tavi {
namespace {

// Everything that a few hundred tasks write, as it is stored and as it is shown.
std::vector<std::string> everythingWritten() {
  std::vector<std::string> lines;
  TaskGenerator generator(44);
  for (int i = 0; i < 500; ++i) {
    const Rehearsal ending = rehearse(generator.next(), 100);
    const auto* outcome = std::get_if<CalculationOutcome>(&ending);
    if (!outcome || !outcome->solutionSteps) continue;
    for (const SolutionStep& step : *outcome->solutionSteps) {
      lines.push_back(*step.latexString);
      lines.push_back(displayLatex(*step.latexString));
    }
  }
  return lines;
}

TEST(Locale, ADecimalCommaChangesNothing) {
  const std::vector<std::string> expected = everythingWritten();
  ASSERT_NE(std::setlocale(LC_ALL, "de_DE.UTF-8"), nullptr) << "LOCPATH leads to no German locale";
  ASSERT_STREQ(std::localeconv()->decimal_point, ",");
  const std::locale before = std::locale::global(std::locale("de_DE.UTF-8"));
  EXPECT_EQ(everythingWritten(), expected);
  std::locale::global(before);
  std::setlocale(LC_ALL, "C");
}

}  // namespace
}  // namespace tavi
