#include "exact/proof_reader.h"

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "exact/account.h"
#include "exact/exact_value.h"
#include "solver/generated_task.h"

namespace tavi::exact {
namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr int taskCount = 1500;
#else
constexpr int taskCount = 20000;
#endif
constexpr std::int64_t fewCopies = 2000;

// The steps of a task, none where it has no working.
SolutionSteps stepsOf(const Task& task) {
  Rehearsal ending = rehearse(task, fewCopies);
  auto* outcome = std::get_if<CalculationOutcome>(&ending);
  return outcome && outcome->solutionSteps ? *std::move(outcome->solutionSteps) : SolutionSteps();
}

std::string exactTask(const Task& task) {
  const auto answer = exactValue(*task.mode, task.first.value_or(""), task.second.value_or(""));
  const auto* value = std::get_if<ExactValue>(&answer);
  return value != nullptr ? value->task : "";
}

// The first letters of the marks: t r o f.
std::string marksOf(const std::vector<CheckedLine>& lines) {
  std::string marks;
  for (const CheckedLine& line : lines) marks += nameOf(line.mark).front();
  return marks;
}
std::string marksOfLines(const std::vector<std::string>& lines) {
  SolutionSteps steps;
  for (const std::string& line : lines) steps.push_back({"", line, {}});
  return marksOf(proofRead(steps, "").lines);
}

// Of a line that follows another one.
char markAfter(const std::string& first, const std::string& line) {
  return marksOfLines({first, line}).back();
}

TEST(ProofReader, MarksTheLinesOfAWorking) {
  struct Example {
    Mode mode;
    const char *first, *second, *marks;
    char result;
  };
  for (const Example& example : std::vector<Example>{
           {Mode::power, "3", "2", "ttttt", 't'},
           {Mode::power, "-2", "3/2", "ttttttr", 't'},
           {Mode::power, "2/3", "8", "ttttttttttt", 't'},
           {Mode::root, "", "2", "ttrttrf", 'r'},
           {Mode::root, "-2", "9", "ttttttttrf", 't'},
           {Mode::power, "13", "9", "tttff", 'f'},
           {Mode::power, "2", "-3", "ttftf", 't'},
           {Mode::power, "2", "2π", "ttfff", 'f'},
           {Mode::power, "2", "x", "tttff", 'f'},
           {Mode::power, "2", "x/3", "ttttr", 'f'},
           {Mode::power, "0", "0", "tf", 'f'},
           {Mode::power, "-2", "0",
            "too"
            "ttt"
            "o",
            'o'},
           {Mode::root, "0", "5", "to", 'o'},
           {Mode::power, "1/2", "-4", "ttoo", 'o'},
           {Mode::root, "2", "-x", "to", 'o'},
           {Mode::power, "2", "1.2345678/3", "trftttf", 'f'},
           {Mode::power, "2", "1.5/-2", "tttftftt", 't'},
       }) {
    const Task task{example.mode, example.first, example.second};
    const Proof proof = proofRead(stepsOf(task), exactTask(task));
    EXPECT_EQ(marksOf(proof.lines), example.marks) << example.first << " " << example.second;
    EXPECT_EQ(nameOf(proof.result.mark).front(), example.result) << example.first << " " << example.second;
  }
}

TEST(ProofReader, ReadsALineAsMathematicsDoes) {
  const std::pair<const char*, char> lines[] = {
      {"6 : 2 = 3", 't'},
      {"\\frac{6 : (-3)}{(-27) : (-3)} = \\left(-\\frac{2}{9}\\right)", 't'},
      {"6\\pi : 2\\pi = 3", 't'},
      {"-2^{2} = -4", 't'},
      {"(-2)^{2} = 4", 't'},
      {"\\left(-2\\right)^{2} = 4", 't'},
      {"2\\pi^{2} = 4\\pi", 'f'},
      {"--3 = +3", 't'},
      {"12^{2} = 144", 't'},
      {"\\frac{3}{2}^{-2} = \\frac{4}{9}", 't'},
      {"\\color{#ff0000}{1}\\color{#00ff00}{2} = 12", 't'},
      {"4^{\\frac{\\color{#5774f7}{2.0}}{\\color{#bf5afa}{2.0}}} = 4", 't'},
      {"\\sqrt[\\color{#ff3333}{-}2]{9} = \\frac{1}{3}", 't'},
      {"\\sqrt{\\sqrt[3]{64}} = 2.0", 't'},
      {"(-8)^{\\frac{1}{3}} = -2", 't'},
      {"1.5e+16 = 15000000000000000", 't'},
      {"1.23457e+06 = 1234567", 'r'},
      {"\\sqrt{2} = 2^{\\frac{1}{2}}", 't'},
      {"\\sqrt{2} = 1.41421", 'r'},
      {"\\sqrt{2} = 1.41422", 'f'},
      {"\\frac{1}{2} \\approx 0.5", 't'},
      {"\\frac{1}{64} \\approx 0.01563", 'r'},
      {"\\frac{1}{64} \\approx 0.01562", 'r'},
      {"\\frac{1}{64} \\approx 0.01564", 'f'},
      {"\\frac{999999}{1000000} \\approx 1", 'f'},
      {"\\frac{1}{1234567} = \\frac{1}{1234570}", 'f'},
      {"\\frac{1}{1000000} \\approx 0", 'r'},
      {"\\frac{1}{1000000} = 0", 'f'},
      {"\\frac{1}{100000} \\approx 0", 'f'},
      {"9^{13} = \\infty", 'f'},
      {"\\infty = \\infty", 't'},
      {"\\infty = -\\infty", 'f'},
      {"0^{0} = 1", 'f'},
      {"0^{-1} = \\infty", 'o'},
      {"\\sqrt{-4} = \\sqrt{-4}", 'o'},
      {"x = x", 't'},
      {"x^{2} = \\left(x\\right) \\left(x\\right)", 't'},
      {"x^{2} = x", 'f'},
      {"\\sqrt{x^{2}} = x", 'f'},
      {"\\sqrt[3]{x^{3}} = x", 't'},
      {"\\sqrt{-x} = \\left(-x\\right)^{\\frac{1}{2}}", 't'},
      {"\\sqrt{\\frac{x}{y}} = \\frac{x}{y}^{\\frac{1}{2}}", 't'},
      {"\\sqrt{2} x = 1.4142135624 x", 'f'},
      {"0^{x} = 0", 'f'},
      {"\\left(-2\\right)^{x} = \\left(-2\\right)^{\\frac{2x}{2}}", 't'},
      {"1 = 1 = 2", 'f'},
      {"\\text{one} = 1", 'o'},
      {"\\text{one} = 1 = 2", 'f'},
      {"2 + 1 = 3", 'o'},
      {"5^{\\infty}) = 1", 'o'},
      {"NaN = 1", 'o'},
      {"\\foo = 1", 'o'},
      {"2^{} = 2", 'o'},
      {"x_{1} = x_{1}", 'o'},
  };
  for (const auto& [line, mark] : lines) EXPECT_EQ(markAfter("7", line), mark) << line;
}

TEST(ProofReader, FollowsTheChain) {
  // Side calculations stand apart, a line without a relation and one that begins with it do not.
  EXPECT_EQ(marksOfLines({"4^{2}", "\\frac{4}{2} = 2", "4^{2}", "=16", "=17", "=17"}), "ttttft");
  EXPECT_EQ(marksOfLines({"4^{2}", "15"}), "tf");
  EXPECT_EQ(marksOfLines({"\\text{words}", "=16", "=16"}), "tot");
  // Typed decimals are exact, others are what was printed of them.
  EXPECT_EQ(markAfter("1.4^{2}", "=2"), 'f');
  EXPECT_EQ(marksOfLines({"7", "=\\sqrt{49.4}", "=7.03", "=\\sqrt{49.4}"}), "tfrr");
  // Words, and what takes the place of a formula.
  const SolutionSteps steps{{"", "1", {}}, {"noSolution", "", {}}, {"", "=1", "message"}, {"", "=1", {}}};
  EXPECT_EQ(marksOf(proofRead(steps, "").lines), "toot");
  EXPECT_EQ(marksOf(proofRead({}, "").lines), "");
}

TEST(ProofReader, KnowsARuleForEveryFalseLine) {
  TaskGenerator generator(14);
  std::map<Rules, int> seen;
  for (int i = 0; i < taskCount; ++i) {
    const Task task = generator.next();
    const SolutionSteps steps = stepsOf(task);
    if (steps.empty()) continue;
    SCOPED_TRACE(*task.first + " | " + *task.second + (task.mode == Mode::power ? " power" : " root"));
    Proof proof = proofRead(steps, exactTask(task), true);
    ASSERT_EQ(proof.lines.size(), steps.size());
    proof.lines.push_back(proof.result);
    for (std::size_t line = 0; line < proof.lines.size(); ++line) {
      const CheckedLine& checked = proof.lines[line];
      ASSERT_EQ(checked.mark == Mark::isFalse, checked.rules != 0)
          << (line < steps.size() ? *steps[line].latexString : exactTask(task));
      for (const RuleKind& kind : ruleKinds()) seen[kind.rule] += (checked.rules & kind.rule) != 0 ? 1 : 0;
    }
  }
#if !defined(__SANITIZE_ADDRESS__)
  for (const RuleKind& kind : ruleKinds()) EXPECT_GT(seen[kind.rule], 0) << kind.key;
#endif
}

// A working that is true, with one digit changed.
TEST(ProofReader, FindsAWrongDigitAndNoRuleForIt) {
  TaskGenerator generator(15);
  int changed = 0;
  int unexplained = 0;
  for (int i = 0; i < taskCount / 4; ++i) {
    SolutionSteps steps = stepsOf(generator.next());
    const auto isFalse = [](const CheckedLine& line) { return line.mark > Mark::isRounded; };
    if (steps.empty() || std::ranges::any_of(proofRead(steps, "").lines, isFalse)) continue;
    std::string& line = *steps.back().latexString;
    // The first digit behind the first relation of the result.
    const std::size_t place = line.find_first_of("123456789", line.find(" = "));
    if (place == std::string::npos) continue;
    line[place] = line[place] == '9' ? '1' : static_cast<char>(line[place] + 1);
    ++changed;
    const CheckedLine last = proofRead(steps, "", true).lines.back();
    EXPECT_EQ(last.mark, Mark::isFalse) << line;
    unexplained += last.rules == 0 ? 1 : 0;
  }
  EXPECT_GT(changed, taskCount / 100);
  EXPECT_GT(unexplained, changed * 9 / 10);
}

TEST(Account, TellsValueMarksAndRules) {
  const auto accountOfTask = [](Mode mode, const char* first, const char* second) {
    return *accountOf(mode, first, second, stepsOf({mode, first, second}));
  };
  const Account infinite = accountOfTask(Mode::power, "13", "9");
  EXPECT_EQ(infinite.value.latex, "2541865828329");
  EXPECT_EQ(sentenceKeys(infinite.rules()), std::vector<std::string_view>{"ruleInfinity"});
  // A line that is true as it stands, but is not the value of the task.
  const Account variable = accountOfTask(Mode::power, "2", "x/3");
  EXPECT_EQ(variable.proof.lines[4].mark, Mark::isRounded);
  EXPECT_TRUE(variable.isMarked(4) && !variable.isMarked(3));
  EXPECT_EQ(sentenceKeys(variable.rules()), std::vector<std::string_view>{"ruleVariable"});
  EXPECT_EQ(accountOfTask(Mode::power, "-2", "3/2").rules(), 0);
  EXPECT_FALSE(accountOf(Mode::power, "1/", "2", {}));
}

TEST(ProofReader, HasAnExampleOfEveryRule) {
  Rules all = 0;
  for (const RuleKind& kind : ruleKinds()) {
    EXPECT_EQ(all & kind.rule, 0) << kind.key;
    all |= kind.rule;
    const auto lines =
        proofRead(stepsOf({kind.mode, std::string(kind.first), std::string(kind.second)}), "", true).lines;
    EXPECT_NE(std::ranges::find(lines, kind.rule, &CheckedLine::rules), lines.end()) << kind.key;
    EXPECT_EQ(sentenceKeys(kind.rule), std::vector{kind.key});
  }
}

}  // namespace
}  // namespace tavi::exact
