#include <string>
#include <variant>

#include <gtest/gtest.h>

#include "generated_task.h"
#include "input/typed_task.h"
#include "number/fatal_stop.h"
#include "solver/rehearsal.h"

namespace tavi {
namespace {

constexpr int taskCount = 30000;
constexpr std::int64_t fewCopies = 2000;

TEST(SolverProperties, HoldForEveryGeneratedTask) {
  TaskGenerator generator(42);
  int solved = 0;
  int rejected = 0;
  int stopped = 0;
  for (int i = 0; i < taskCount; ++i) {
    const Task task = generator.next();
    SCOPED_TRACE(*task.first + " | " + *task.second + (task.mode == Mode::power ? " power" : " root"));
    const Rehearsal ending = rehearse(task, fewCopies);
    const auto* outcome = std::get_if<CalculationOutcome>(&ending);
    if (!outcome) {
      ++stopped;
      ASSERT_NO_THROW(typedLatex(typedTask(task.mode, *task.first, *task.second)));
      continue;
    }
    ASSERT_NE(outcome->errorKey.has_value(), outcome->solutionSteps.has_value());
    const TypedTask typed = typedTask(task.mode, *task.first, *task.second);
    ASSERT_EQ(typed.errorKey, outcome->errorKey);
    if (outcome->errorKey) {
      ++rejected;
      ASSERT_FALSE(outcome->errorFieldIds->empty());
      continue;
    }
    ++solved;
    const SolutionSteps& steps = *outcome->solutionSteps;
    ASSERT_GE(steps.size(), 2U);
    ASSERT_EQ(steps.front().title, "Your Input");
    ASSERT_EQ(steps.front().latexString, outcome->latexString);
    ASSERT_EQ(typedLatex(typed), outcome->latexString);

    int numbered = 0;
    int endings = 0;
    for (const SolutionStep& step : steps) {
      if (step.title->starts_with("Step ")) {
        ++numbered;
        ASSERT_TRUE(step.title->starts_with("Step " + std::to_string(numbered) + "    ")) << *step.title;
      }
      if (step.title == "Result") {
        ++endings;
        ASSERT_TRUE(step.latexString->starts_with(*outcome->latexString + " = "));
      }
      if (step.title == "noSolution") {
        ++endings;
        ASSERT_EQ(step.latexString, "");
        ASSERT_EQ(&step, &steps.back());
      }
    }
    ASSERT_EQ(endings, 1);
  }
  // The generator must not miss any of the endings.
  EXPECT_GT(solved, taskCount / 4);
  EXPECT_GT(rejected, taskCount / 20);
  EXPECT_GT(stopped, taskCount / 1000);
}

TEST(SolverProperties, ASecondCalculationAfterAResetWritesTheSameSteps) {
  TaviStringOutput& output = TaviStringOutput::shared();
  TaskGenerator generator(43);
  for (int i = 0; i < 2000; ++i) {
    const Task task = generator.next();
    const Rehearsal expected = rehearse(task, fewCopies);
    const auto* outcome = std::get_if<CalculationOutcome>(&expected);
    if (!outcome || !outcome->solutionSteps) continue;
    for (int run = 0; run < 2; ++run) {
      output.reset();
      TaviExponentSolver solver;
      ASSERT_EQ(solver.calculate(task.first, "a", task.second, "x", task.mode).solutionSteps,
                outcome->solutionSteps);
    }
  }
  output.reset();
}

TEST(Solver, NoModeRunsTheAnalysisAlone) {
  const Rehearsal ending = rehearse({modeOf(7), "2", "0.5"});
  const auto& outcome = std::get<CalculationOutcome>(ending);
  EXPECT_EQ(outcome.latexString, "");
  EXPECT_EQ(outcome.solutionSteps->back().title, "Modified Input");
}

TEST(Solver, AnEmptyFirstFieldIsASquareRootButNoExponent) {
  const Rehearsal root = rehearse({Mode::root, std::nullopt, "9"});
  EXPECT_EQ(std::get<CalculationOutcome>(root).latexString, "\\sqrt[2]{9}");
  const Rehearsal power = rehearse({Mode::power, "", "9"});
  EXPECT_EQ(std::get<CalculationOutcome>(power).errorKey, "notEnoughInputValues");
  EXPECT_EQ(std::get<CalculationOutcome>(power).errorFieldIds, std::vector<std::string>{"aTextField"});
}

TEST(Rehearsal, TellsHowATaskEndsAndLeavesNothingOfWhatDoesNotEndWell) {
  const std::string most = std::to_string(copyLimit);
  EXPECT_TRUE(std::holds_alternative<CalculationOutcome>(rehearse({Mode::power, most, "2"})));
  TaviStringOutput output;
  TaviMathOperation operation(output);
  for (const std::int64_t copies : {copyLimit + 1, std::int64_t{9'000'000'000'000'000'000}}) {
    const Task task{Mode::power, std::to_string(copies), "3/2"};
    EXPECT_EQ(std::get<ExpansionTooLong>(rehearse(task, output, operation)).copies, copies);
    EXPECT_TRUE(output.solutionSteps.empty() && !operation.withFraction) << copies;
  }
  for (const auto& [first, second] :
       {std::pair{"2", "1.000001/3"}, {"10000000000000000000", "2"}, {"365", "1.01"}, {"2", "()"}}) {
    EXPECT_TRUE(std::holds_alternative<FatalStop>(rehearse({Mode::power, first, second}, output, operation)))
        << first << ' ' << second;
    EXPECT_TRUE(output.solutionSteps.empty() && !operation.withFraction) << first << ' ' << second;
  }
}

}  // namespace
}  // namespace tavi
