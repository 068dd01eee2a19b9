// How fast lines are set. A whole solution is to be set within one frame.
#include <algorithm>
#include <fstream>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "typeset/bundled_font.h"
#include "typeset/typeset.h"

namespace tavi::typeset {
namespace {

MathFont& font() {
  static MathFont opened = MathFont::open(bundledMathFont()).value();
  return opened;
}

// The lines of the worked examples open the file; the nestings that only tests need follow.
std::vector<std::string> workedLines() {
  std::ifstream file(TAVI_LINES);
  std::vector<std::string> lines;
  for (std::string line; std::getline(file, line) && line != "2^{\\infty}";) lines.push_back(line);
  return lines;
}

void setWorkedLine(benchmark::State& state) {
  const std::vector<std::string> lines = workedLines();
  for (const std::string& line : lines) typeset(line, font(), 20);
  std::size_t next = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(typeset(lines[next], font(), 20));
    next = (next + 1) % lines.size();
  }
}
BENCHMARK(setWorkedLine);

void setFactors(benchmark::State& state, std::string_view factor) {
  std::string line = "=";
  for (std::int64_t count = 0; count < state.range(0); ++count) line += factor;
  for (auto _ : state) benchmark::DoNotOptimize(typeset(line, font(), 20));
  state.SetComplexityN(state.range(0));
}
BENCHMARK_CAPTURE(setFactors, number, "\\left( 2 \\right) ")
    ->RangeMultiplier(10)
    ->Range(10, 100000)
    ->Unit(benchmark::kMicrosecond)
    ->Complexity(benchmark::oN);
BENCHMARK_CAPTURE(setFactors, fraction, "\\left( \\frac{2}{3} \\right) ")
    ->RangeMultiplier(10)
    ->Range(10, 100000)
    ->Unit(benchmark::kMicrosecond)
    ->Complexity(benchmark::oN);

void setNested(benchmark::State& state) {
  std::string line = "2";
  for (std::int64_t count = 0; count < state.range(0); ++count) line = "\\sqrt{\\frac{" + line + "}{3}}";
  for (auto _ : state) benchmark::DoNotOptimize(typeset(line, font(), 20));
}
BENCHMARK(setNested)->Arg(5)->Arg(50)->Arg(99)->Unit(benchmark::kMicrosecond);

void openFont(benchmark::State& state) {
  for (auto _ : state) {
    auto opened = MathFont::open(bundledMathFont());
    benchmark::DoNotOptimize(typeset("x^{2}=\\sqrt[3]{\\left(\\frac{1}{2}\\right)}", *opened, 20));
  }
}
BENCHMARK(openFont)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tavi::typeset
