#include <algorithm>
#include <array>
#include <charconv>
#include <iostream>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include <nlohmann/json.hpp>

#include "commands.h"
#include "exact/exact_value.h"
#include "exact/proof_reader.h"
#include "json_lines.h"
#include "json_task.h"
#include "solution/display_latex.h"
#include "solver/rehearsal.h"

namespace tavi::cli {
namespace {

using exact::ExactValue;
using exact::InputError;
using nlohmann::ordered_json;
using Answer = std::variant<ExactValue, InputError>;

constexpr std::array<std::string_view, 2> fieldIds{"aTextField", "xTextField"};

constexpr std::string_view usage = R"(Usage: tavi-cli exact [--digits N] power EXPONENT BASE
       tavi-cli exact [--digits N] root INDEX RADICAND
       tavi-cli exact [--digits N] --json-lines
       tavi-cli exact --rules

Prints the value that the task has by the rules of mathematics, beside what its working
comes to: in LaTeX, as a decimal of which every digit is proved, and what there is to say
of it. Operands are those of solve. Behind "--" nothing is an option.

  --digits N    significant digits of the decimal, 15 to 1000; 15 unless told
  --json-lines  answers each line {"first": text or null, "second": text or null,
                "mode": 0 for power or 1 for root} of standard input by one line:
                {"latex", "decimal", "kind", "reason"?, "note"?},
                {"errorKey", "errorFieldIds"} or {"malformed": true}
  --rules       prints the page docs/truth.md: by which rules of the working a line of it can
                be false, with an example of each

Exit code: 2 the input is rejected.
)";

std::vector<std::string_view> idsOf(const InputError& error) {
  std::vector<std::string_view> ids;
  for (const std::size_t field : error.fields) ids.push_back(fieldIds[field]);
  return ids;
}

ordered_json asJson(const InputError& error) {
  return {{"errorKey", error.key}, {"errorFieldIds", idsOf(error)}};
}

ordered_json asJson(const ExactValue& value) {
  ordered_json json{{"latex", value.latex},
                    {"decimal", value.decimal ? ordered_json(*value.decimal) : ordered_json()},
                    {"kind", nameOf(value.kind)}};
  if (value.reason) json["reason"] = inEnglish(*value.reason);
  if (value.note) json["note"] = inEnglish(*value.note);
  return json;
}

int print(const InputError& error) {
  std::cerr << error.key;
  for (const std::string_view id : idsOf(error)) std::cerr << ' ' << id;
  std::cerr << '\n';
  return rejected;
}

int print(const ExactValue& value) {
  const auto line = [](std::string_view name, std::string_view text) {
    std::cout << name << std::string(10 - name.size(), ' ') << text << '\n';
  };
  line("task", value.task);
  line("value", value.latex);
  line("kind", nameOf(value.kind));
  if (value.decimal) line("decimal", *value.decimal);
  if (const auto& whole = value.wholeNumber) {
    line("digits", whole->digitCount + ": " + whole->firstDigits + "..." + whole->lastDigits);
  }
  if (value.reason) line("reason", inEnglish(*value.reason));
  if (value.note) line("note", inEnglish(*value.note));
  return success;
}

int answerTasks(int digits) {
  return answerLines([digits](std::string_view line, std::string& out) {
    const std::optional<JsonTask> task = readJsonTask(line);
    const std::optional<Mode> mode = task ? modeOf(task->mode) : std::nullopt;
    if (!mode) return false;
    const Answer answer =
        exact::exactValue(*mode, task->first.value_or(""), task->second.value_or(""), digits);
    out += std::visit([](const auto& result) { return asJson(result); }, answer).dump();
    return true;
  });
}

// The first line of an example's working that is false because of its rule alone.
std::string falseLine(const exact::RuleKind& kind) {
  const Rehearsal ending = rehearse({kind.mode, std::string(kind.first), std::string(kind.second)});
  const SolutionSteps& steps = *std::get<CalculationOutcome>(ending).solutionSteps;
  const auto lines = exact::proofRead(steps, "", true).lines;
  const auto line = std::ranges::find(lines, kind.rule, &exact::CheckedLine::rules);
  return line == lines.end()
             ? ""
             : displayLatex(*steps[static_cast<std::size_t>(line - lines.begin())].latexString);
}

void printRules() {
  std::cout << "# Where a working is not true\n\n"
               "A working follows its rules to the letter, and some of them are not those of mathematics. "
               "Each line that\n"
               "`tavi-cli solve --check` marks as false is true again when it is read by one of these rules, "
               "or by several of\n"
               "them. `tavi-cli exact --rules` makes this page; a test over generated tasks fails where none "
               "of them does.\n\n"
               "| Rule | Task | Line that is false because of it |\n|---|---|---|\n";
  for (const exact::RuleKind& kind : exact::ruleKinds()) {
    const std::string_view mode = kind.mode == Mode::power ? "power" : "root";
    std::cout << "| " << exact::englishWords(kind.key) << " | `" << mode << ' ' << kind.first << ' '
              << kind.second << "` | `" << falseLine(kind) << "` |\n";
  }
}

std::optional<int> readDigits(std::string_view text) {
  int digits = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), digits);
  const bool isNumber = error == std::errc() && end == text.data() + text.size();
  if (!isNumber || digits < exact::usualDigits || digits > exact::maximumDigits) return std::nullopt;
  return digits;
}

}  // namespace

int exactCommand(Arguments arguments) {
  int digits = exact::usualDigits;
  bool isLines = false;
  bool areOptionsOver = false;
  std::vector<std::string_view> operands;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string_view argument = arguments[i];
    if (areOptionsOver || !isOption(argument)) {
      operands.push_back(argument);
    } else if (argument == "--") {
      areOptionsOver = true;
    } else if (argument == "--help") {
      std::cout << usage;
      return success;
    } else if (argument == "--rules" && arguments.size() == 1) {
      printRules();
      return success;
    } else if (argument == "--json-lines") {
      isLines = true;
    } else if (argument == "--digits") {
      const auto read = readDigits(i + 1 < arguments.size() ? arguments[i + 1] : "");
      if (!read) return usageError("--digits needs a number from 15 to 1000", usage);
      digits = *read;
      ++i;
    } else {
      return usageError("exact has no option " + std::string(argument), usage);
    }
  }
  if (isLines)
    return operands.empty() ? answerTasks(digits) : usageError("--json-lines takes no operands", usage);
  if (operands.size() != 3) return usageError("exact takes a mode and two operands", usage);
  const std::optional<Mode> mode = readMode(operands[0]);
  if (!mode) return usageError("the mode is power or root", usage);
  return std::visit([](const auto& answer) { return print(answer); },
                    exact::exactValue(*mode, operands[1], operands[2], digits));
}

}  // namespace tavi::cli
