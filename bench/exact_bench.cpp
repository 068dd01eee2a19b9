// What the exact value beside a working costs, and reading its lines.
#include <algorithm>
#include <array>
#include <cmath>
#include <ctime>
#include <random>
#include <string>

#include <benchmark/benchmark.h>
#include <sys/resource.h>

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

// Terms that are dear: many digits, numbers next to 1, large and tiny ones, exponents that bring a power to
// just below the most digits that are written.
class Hostile {
 public:
  std::string term() {
    const int minus = below(4) == 0 ? below(5) : 0;
    std::string text(static_cast<std::size_t>(minus), '-');
    text += number() + symbol();
    return below(2) == 0 ? text : text + '/' + number() + symbol();
  }

  Example task() {
    if (below(3) != 0) return {"", term(), term(), below(2) == 0 ? Mode::power : Mode::root};
    const double mostDigits = below(2) == 0 ? 999'990 : 1'000'010;
    const std::string numerator = digits(1 + below(12));
    const double exponent = mostDigits / std::log10(std::max(2.0, std::stod(numerator)));
    const std::string denominator = std::to_string(std::stoll(numerator) + below(3));
    return {"", std::to_string(std::llround(exponent)), numerator + '/' + denominator, Mode::power};
  }

 private:
  int below(int end) { return static_cast<int>(random_() % static_cast<unsigned>(end)); }

  std::string digits(int count) {
    std::string text;
    for (int index = 0; index < count; ++index) text += static_cast<char>('0' + below(10));
    return text.front() == '0' ? '1' + text.substr(1) : text;
  }

  std::string number() {
    const auto length = static_cast<std::size_t>(1 + below(40));
    switch (below(11)) {
      case 0:
        return digits(1);
      case 1:
        return digits(below(40) + 1);
      case 2:
        return digits(1 + below(3)) + '.' + digits(below(40) + 1);
      case 3:
        return "0." + std::string(length, '0') + digits(1 + below(10));
      case 4:
        return '1' + std::string(length % 12, '0');
      case 5:
        return std::string(length, '9');
      case 6:
        return "0." + std::string(length, '9');
      case 7:
        return std::to_string(1 << below(31));
      case 8:
        return "1." + std::string(length, '0') + '1';
      case 9:
        return digits(300 + below(2000));
      default:
        return digits(5) + '.' + digits(5);
    }
  }

  std::string symbol() {
    constexpr std::array symbols{"", "", "", "", "x", "y", "z", "π"};
    return symbols.at(static_cast<std::size_t>(below(static_cast<int>(symbols.size()))));
  }

  std::minstd_rand random_;
};

double processorMilliseconds() {
  return 1000.0 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

double peakMegabytes() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return static_cast<double>(usage.ru_maxrss) / 1024;
}

std::string shown(const std::string& text) {
  constexpr std::size_t longest = 40;
  return text.size() <= longest ? text : text.substr(0, longest) + "...";
}

double timeOf(const Example& task) {
  const double start = processorMilliseconds();
  benchmark::DoNotOptimize(exact::exactValue(task.mode, task.first, task.second));
  return processorMilliseconds() - start;
}

// The dearest of many tasks, and what all of them take of memory. The least time of several runs of each that
// seems dear is that of the task itself.
void dearest(benchmark::State& state) {
  constexpr int tasks = 2000;
  constexpr int furtherRuns = 4;
  const double before = peakMegabytes();
  double most = 0;
  for (auto _ : state) {
    Hostile hostile;
    for (int count = 0; count < tasks; ++count) {
      const Example task = hostile.task();
      double time = timeOf(task);
      for (int run = 0; run < furtherRuns && time > most; ++run) time = std::min(time, timeOf(task));
      if (time > most)
        state.SetLabel(shown(task.first) + (task.mode == Mode::power ? " of " : " root of ") +
                       shown(task.second));
      most = std::max(most, time);
    }
  }
  state.counters["worst_ms"] = most;
  state.counters["MB"] = peakMegabytes() - before;
}
BENCHMARK(dearest)->Iterations(1)->Unit(benchmark::kSecond);

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
