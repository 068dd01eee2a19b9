// What the exact value beside a working costs, and reading its lines.
#include <string>

#include <benchmark/benchmark.h>

#include "exact/exact_value.h"
#include "exact/proof_reader.h"
#include "solver/rehearsal.h"

namespace tavi {
namespace {

struct Example {
  const char* name;
  std::string first, second;
  Mode mode;
};

const Example usual[] = {
    {"2^3", "3", "2", Mode::power},         {"(3/2)^-2", "-2", "3/2", Mode::power},
    {"8^(2/3)", "2/3", "8", Mode::power},   {"sqrt(2)", "", "2", Mode::root},
    {"sqrt[-2](9)", "-2", "9", Mode::root}, {"0.5^2.5", "2.5", "0.5", Mode::power},
    {"(2pi)^2", "2", "2π", Mode::power},    {"9^13", "13", "9", Mode::power},
};

// The dearest that the keypad can type.
const std::string nines(40, '9');
const Example large[] = {
    {"2^10000", "10000", "2", Mode::power},
    {"9^(10^6)", "1000000", "9", Mode::power},
    {"9^(10^9)", "1000000000", "9", Mode::power},
    {"(9/7)^(10^6)", "1000000", "9/7", Mode::power},
    {"(999../7)^20000", "20000", nines + "/7", Mode::power},
    {"9.99..^(1/7)", "1/7", "9." + nines, Mode::power},
    {"root[999](999..)", "999", nines, Mode::root},
    {"3.1^(10^9 pi)", "1000000000π", "3.1", Mode::power},
};

void calculate(benchmark::State& state, const Example& task) {
  for (auto _ : state) benchmark::DoNotOptimize(exact::exactValue(task.mode, task.first, task.second));
}

void proofRead(benchmark::State& state, const Example& task, bool isExplained) {
  const auto ending = rehearse({task.mode, task.first, task.second});
  const SolutionSteps& steps = *std::get<CalculationOutcome>(ending).solutionSteps;
  for (auto _ : state) benchmark::DoNotOptimize(exact::proofRead(steps, "", isExplained));
}

[[maybe_unused]] const bool areRegistered = [] {
  for (const Example& task : usual) {
    benchmark::RegisterBenchmark((std::string("exact/") + task.name).c_str(), calculate, task);
    benchmark::RegisterBenchmark((std::string("check/") + task.name).c_str(), proofRead, task, false);
    benchmark::RegisterBenchmark((std::string("explain/") + task.name).c_str(), proofRead, task, true);
  }
  for (const Example& task : large) {
    benchmark::RegisterBenchmark((std::string("exact/") + task.name).c_str(), calculate, task)
        ->Unit(benchmark::kMillisecond);
  }
  return true;
}();

}  // namespace
}  // namespace tavi
