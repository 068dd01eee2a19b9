#include <algorithm>
#include <array>
#include <cstdint>
#include <iostream>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <QtCore/QCoreApplication>

#include "commands.h"
#include "exact/proof_reader.h"
#include "json_lines.h"
#include "json_task.h"
#include "solution/display_latex.h"
#include "solver/rehearsal.h"

namespace tavi::cli {
namespace {

constexpr std::string_view usage = R"(Usage: tavi-cli solve [options] power EXPONENT BASE
       tavi-cli solve [options] root INDEX RADICAND
       tavi-cli solve --json-lines

Prints the working, a line for each step: its title and its LaTeX as it is typeset.
An operand is a number, a decimal, a fraction, or a multiple of π, x, y or z, and may
begin with a minus; an empty INDEX is 2. Behind "--" nothing is an option.

  --language L  titles in that language, such as de, instead of their keys
  --check       before each line whether it is true, rounded, false or open; in JSON as
                "check" of its step
  --raw         the LaTeX as it is stored
  --json        one JSON object, with the stored LaTeX
  --json-lines  answers each line {"first": text or null, "second": text or null,
                "mode": 0 for power or 1 for root} of standard input by one line:
                {"steps", "latexString"}, {"errorKey", "errorFieldIds"},
                {"fatal": true}, {"huge": copies} or {"malformed": true}

Exit codes: 1 a checked line is false, 2 the input is rejected, 3 the task would end the
process, 4 the power would be written out with more than 10000 copies of its base.
)";

// What each ending of a task tells a reader, and its exit code.

int explain(const CalculationOutcome& outcome) {
  if (!outcome.errorKey) return success;
  std::cerr << *outcome.errorKey;
  for (const std::string& id : *outcome.errorFieldIds) std::cerr << ' ' << id;
  std::cerr << '\n';
  return rejected;
}
int explain(const FatalStop& stop) {
  std::cerr << "This task would end the process: " << stop.reason << '\n';
  return fatal;
}
int explain(const ExpansionTooLong& expansion) {
  std::cerr << "This power would be written out with " << expansion.copies << " copies of its base\n";
  return tooLong;
}

// In characters; all bytes of one but the first have the form 10xxxxxx.
std::ptrdiff_t widthOf(std::string_view text) {
  return std::ranges::count_if(text, [](char byte) { return (byte & 0xC0) != 0x80; });
}

using Marks = std::vector<exact::CheckedLine>;

// The marks of a working's lines; none where there is no working.
Marks marksOf(const Rehearsal& ending) {
  const auto* outcome = std::get_if<CalculationOutcome>(&ending);
  if (outcome == nullptr || !outcome->solutionSteps) return {};
  return exact::proofRead(*outcome->solutionSteps, "").lines;
}

void printSteps(const SolutionSteps& steps, const Marks& marks, bool isRaw) {
  std::ptrdiff_t width = 0;
  for (const SolutionStep& step : steps) width = std::max(width, widthOf(*step.title));
  for (std::size_t i = 0; i < steps.size(); ++i) {
    const SolutionStep& step = steps[i];
    if (!marks.empty()) {
      const std::string_view mark = nameOf(marks[i].mark);
      std::cout << mark << std::string(9 - mark.size(), ' ');
    }
    std::cout << *step.title << std::string(static_cast<std::size_t>(width + 2 - widthOf(*step.title)), ' ')
              << (isRaw ? *step.latexString : displayLatex(*step.latexString)) << '\n';
  }
}

int solveOne(const Task& task, std::string_view form, bool isChecked) {
  const Rehearsal ending = rehearse(task);
  const Marks marks = isChecked ? marksOf(ending) : Marks();
  if (form == "--json") {
    std::string line;
    appendJsonEnding(line, ending, marks);
    std::cout << line << '\n';
  } else if (const auto* outcome = std::get_if<CalculationOutcome>(&ending);
             outcome != nullptr && outcome->solutionSteps) {
    printSteps(*outcome->solutionSteps, marks, form == "--raw");
  }
  if (std::ranges::find(marks, exact::Mark::isFalse, &exact::CheckedLine::mark) != marks.end()) return untrue;
  return std::visit([](const auto& result) { return explain(result); }, ending);
}

bool answer(std::string_view line, std::string& out, bool isChecked) {
  std::optional<JsonTask> task = readJsonTask(line);
  if (!task) return false;
  const Rehearsal ending = rehearse({modeOf(task->mode), std::move(task->first), std::move(task->second)});
  appendJsonEnding(out, ending, isChecked ? marksOf(ending) : Marks());
  return true;
}

}  // namespace

int solveCommand(Arguments arguments) {
  std::string_view form;
  std::optional<std::string_view> language;
  std::vector<std::string> operands;
  bool isChecked = false;
  bool areOptionsOver = false;
  for (std::size_t index = 0; index < arguments.size(); ++index) {
    const std::string_view argument = arguments[index];
    if (areOptionsOver || !isOption(argument)) {
      operands.emplace_back(argument);
    } else if (argument == "--") {
      areOptionsOver = true;
    } else if (argument == "--help") {
      std::cout << usage;
      return success;
    } else if (argument == "--check") {
      isChecked = true;
    } else if (argument == "--language") {
      if (++index == arguments.size()) return usageError(languageNeed, usage);
      language = arguments[index];
    } else if (argument == "--raw" || argument == "--json" || argument == "--json-lines") {
      if (!form.empty() && form != argument) {
        return usageError("--raw, --json and --json-lines exclude each other", usage);
      }
      form = argument;
    } else {
      return usageError("solve has no option " + std::string(argument), usage);
    }
  }
  int argumentCount = 1;
  std::string name = "tavi-cli";
  std::array<char*, 2> applicationArguments{name.data(), nullptr};
  std::optional<QCoreApplication> application;
  if (language) {
    application.emplace(argumentCount, applicationArguments.data());
    if (const auto problem = useLanguage(*language)) return usageError(*problem, usage);
  }
  if (form == "--json-lines") {
    if (!operands.empty()) return usageError("--json-lines takes no operands", usage);
    return answerLines(
        [isChecked](std::string_view line, std::string& out) { return answer(line, out, isChecked); });
  }
  if (operands.size() != 3) return usageError("solve takes a mode and two operands", usage);
  const std::optional<Mode> mode = readMode(operands[0]);
  if (!mode) return usageError("the mode is power or root", usage);
  return solveOne({*mode, operands[1], operands[2]}, form, isChecked);
}

}  // namespace tavi::cli
