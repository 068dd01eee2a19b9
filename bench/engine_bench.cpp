// What a solution costs: the working of typical tasks, and the clean-up of its longest line.
#include <algorithm>
#include <string>

#include <benchmark/benchmark.h>

#include "solution/display_latex.h"
#include "solver/exponent_solver.h"

namespace tavi {
namespace {

struct Example {
  const char* name;
  std::string first, second;
  Mode mode;
};

const Example tasks[] = {
    {"2^3", "3", "2", Mode::power},         {"(3/2)^-2", "-2", "3/2", Mode::power},
    {"8^(2/3)", "2/3", "8", Mode::power},   {"sqrt(2)", "", "2", Mode::root},
    {"sqrt[-2](9)", "-2", "9", Mode::root}, {"0.5^2.5", "2.5", "0.5", Mode::power},
};

CalculationOutcome solve(const Example& task, TaviStringOutput& output, TaviMathOperation& operation) {
  output.reset();
  return TaviExponentSolver(output, operation)
      .calculate(task.first, "aTextField", task.second, "xTextField", task.mode);
}

void calculate(benchmark::State& state, const Example& task) {
  TaviStringOutput output;
  TaviMathOperation operation(output);
  for (auto _ : state) benchmark::DoNotOptimize(solve(task, output, operation));
}

std::string longestLine(const Example& task) {
  TaviStringOutput output;
  TaviMathOperation operation(output);
  const SolutionSteps steps = *solve(task, output, operation).solutionSteps;
  return *std::max_element(steps.begin(), steps.end(), [](const SolutionStep& a, const SolutionStep& b) {
            return a.latexString->size() < b.latexString->size();
          })->latexString;
}

void display(benchmark::State& state, const std::string& line) {
  for (auto _ : state) benchmark::DoNotOptimize(displayLatex(line));
  state.counters["characters"] = static_cast<double>(line.size());
}

// The power that is written out with so many copies of its base.
Example expansion(std::int64_t copies) {
  return {"", std::to_string(copies), "2", Mode::power};
}

void calculateExpansion(benchmark::State& state) {
  const Example task = expansion(state.range());
  TaviStringOutput output;
  TaviMathOperation operation(output);
  for (auto _ : state) benchmark::DoNotOptimize(solve(task, output, operation));
  state.SetComplexityN(state.range());
}
BENCHMARK(calculateExpansion)->RangeMultiplier(10)->Range(100, 100000)->Complexity();

void displayExpansion(benchmark::State& state) {
  const std::string line = longestLine(expansion(state.range()));
  display(state, line);
  state.SetComplexityN(static_cast<std::int64_t>(line.size()));
}
BENCHMARK(displayExpansion)->RangeMultiplier(10)->Range(100, 100000)->Complexity();

// A line that drops one ".0" a pass.
void displayZeroFractions(benchmark::State& state) {
  std::string line;
  for (std::int64_t i = 0; i < state.range(); ++i) line += "1.0 + ";
  display(state, line);
  state.SetComplexityN(static_cast<std::int64_t>(line.size()));
}
BENCHMARK(displayZeroFractions)->RangeMultiplier(4)->Range(16, 1024)->Complexity();

const int registered = [] {
  for (const Example& task : tasks) {
    const std::string name = task.name;
    benchmark::RegisterBenchmark(("calculate/" + name).c_str(), calculate, task);
    benchmark::RegisterBenchmark(("display/" + name).c_str(), display, longestLine(task));
  }
  return 0;
}();

}  // namespace
}  // namespace tavi
