// Reads worked_examples.md and holds the solver to it.
#include <fstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "number/fatal_stop.h"
#include "solver/exponent_solver.h"

namespace tavi {
namespace {

struct Line {
  std::string title, latex;
  bool operator==(const Line&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Line& line) {
  return out << '\n' << line.title << " | " << line.latex;
}

struct Example {
  Mode mode = Mode::power;
  std::string first, second;
  std::vector<Line> lines;
};

// The texts between the backticks of a line; an empty pair counts.
std::vector<std::string> backticked(const std::string& line) {
  std::vector<std::string> texts;
  for (std::size_t from = line.find('`'); from != std::string::npos; from = line.find('`', from)) {
    const std::size_t end = line.find('`', from + 1);
    if (end == std::string::npos) break;
    texts.push_back(line.substr(from + 1, end - from - 1));
    from = end + 1;
  }
  return texts;
}

std::string cell(const std::string& line, std::size_t from, std::size_t end) {
  const std::vector<std::string> texts = backticked(line.substr(from, end - from));
  return texts.empty() ? "" : texts.front();
}

std::vector<Example> readExamples() {
  std::ifstream page(TAVI_SOURCE_DIR "/tests/solver/worked_examples.md");
  std::vector<Example> examples;
  for (std::string line; std::getline(page, line);) {
    if (line.starts_with("## ")) {
      const std::vector<std::string> operands = backticked(line);
      if (operands.size() != 2) throw std::runtime_error("no task: " + line);
      const Mode mode = line.starts_with("## root") ? Mode::root : Mode::power;
      examples.push_back({mode, operands[0], operands[1], {}});
    } else if (line.starts_with("| `") || line.starts_with("|  |")) {
      const std::size_t middle = line.find(" | ", 1);
      examples.back().lines.push_back({cell(line, 0, middle), cell(line, middle, line.size())});
    }
  }
  return examples;
}

TEST(WorkedExamples, ComeOutToTheLetter) {
  const std::vector<Example> examples = readExamples();
  ASSERT_GE(examples.size(), 25U);
  for (const Example& example : examples) {
    SCOPED_TRACE((example.mode == Mode::power ? "power " : "root ") + example.first + " " + example.second);
    ASSERT_FALSE(example.lines.empty());
    TaviStringOutput output;
    TaviMathOperation operation(output);
    const CalculationOutcome outcome = TaviExponentSolver(output, operation)
                                           .calculate(example.first, "a", example.second, "x", example.mode);
    ASSERT_TRUE(outcome.solutionSteps);
    std::vector<Line> lines;
    for (const SolutionStep& step : *outcome.solutionSteps) lines.push_back({*step.title, *step.latexString});
    EXPECT_EQ(lines, example.lines);
    EXPECT_EQ(outcome.latexString, lines.front().latex);
  }
}

}  // namespace
}  // namespace tavi
