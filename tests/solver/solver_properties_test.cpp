#include <string>
#include <variant>

#include <gtest/gtest.h>

#include "generated_task.h"
#include "number/fatal_stop.h"
#include "solver/rehearsal.h"

namespace tavi {
namespace {

constexpr int taskCount = 30000;

Rehearsal solve(const GeneratedTask& task) {
  return rehearse(task.first, "a", task.second, "x", task.mode, 2000);
}

TEST(SolverProperties, HoldForEveryGeneratedTask) {
  TaskGenerator generator(42);
  int solved = 0;
  int rejected = 0;
  int stopped = 0;
  for (int i = 0; i < taskCount; ++i) {
    const GeneratedTask task = generator.next();
    SCOPED_TRACE(task.first + " | " + task.second + " | " + std::to_string(task.mode));
    const Rehearsal ending = solve(task);
    const auto* outcome = std::get_if<CalculationOutcome>(&ending);
    if (!outcome) {
      ++stopped;
      continue;
    }
    ASSERT_NE(outcome->errorKey.has_value(), outcome->solutionSteps.has_value());
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
    const GeneratedTask task = generator.next();
    const Rehearsal expected = solve(task);
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

TEST(Solver, OtherModesRunTheAnalysisAlone) {
  const Rehearsal ending = rehearse("2", "a", "0.5", "x", 7, 10);
  const auto& outcome = std::get<CalculationOutcome>(ending);
  EXPECT_EQ(outcome.latexString, "");
  EXPECT_EQ(outcome.solutionSteps->back().title, "Modified Input");
}

TEST(Solver, AnEmptyFirstFieldIsASquareRootButNoExponent) {
  const Rehearsal root = rehearse(std::nullopt, "a", "9", "x", TaviExponentSolver::rootMode, 10);
  EXPECT_EQ(std::get<CalculationOutcome>(root).latexString, "\\sqrt[2]{9}");
  const Rehearsal power = rehearse("", "a", "9", "x", TaviExponentSolver::powerMode, 10);
  EXPECT_EQ(std::get<CalculationOutcome>(power).errorKey, "notEnoughInputValues");
  EXPECT_EQ(std::get<CalculationOutcome>(power).errorFieldIds, std::vector<std::string>{"a"});
}

TEST(Rehearsal, TellsHowATaskWouldEnd) {
  EXPECT_EQ(std::get<ExpansionTooLong>(rehearse("1001", "a", "2", "x", 0, 1000)).copies, 1001);
  EXPECT_EQ(std::get<ExpansionTooLong>(rehearse("9000000000000000000", "a", "2", "x", 0, 1000)).copies,
            9000000000000000000);
  EXPECT_TRUE(std::holds_alternative<CalculationOutcome>(rehearse("1000", "a", "2", "x", 0, 1000)));
  for (const auto& [first, second] :
       {std::pair{"2", "1.000001/3"}, {"10000000000000000000", "2"}, {"365", "1.01"}, {"2", "()"}}) {
    EXPECT_TRUE(std::holds_alternative<FatalStop>(rehearse(first, "a", second, "x", 0, 1000)))
        << first << ' ' << second;
  }
}

}  // namespace
}  // namespace tavi
