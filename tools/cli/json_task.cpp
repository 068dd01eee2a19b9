#include "json_task.h"

#include <simdjson.h>

#include "json_lines.h"

namespace tavi::cli {
namespace {

using simdjson::dom::element;

// Each takes a value of its kind; false for one of another.

bool take(element value, std::optional<std::string>& text) {
  std::string_view content;
  const bool isText = value.get(content) == simdjson::SUCCESS;
  text.reset();
  if (isText) text.emplace(content);
  return isText || value.is_null();
}

bool take(element value, std::int64_t& number) {
  if (value.get(number) == simdjson::SUCCESS) return true;
  number = -1;  // What lies beyond the range is as little a mode.
  return value.is_uint64();
}

using Marks = std::span<const exact::CheckedLine>;

void appendJson(std::string& out, const CalculationOutcome& outcome, Marks marks) {
  std::string_view separator;
  if (outcome.errorKey) {
    out += R"({"errorKey":)";
    appendJsonText(out, *outcome.errorKey);
    out += R"(,"errorFieldIds":[)";
    for (const std::string& id : *outcome.errorFieldIds) {
      out += separator;
      appendJsonText(out, id);
      separator = ",";
    }
    out += "]}";
    return;
  }
  out += R"({"steps":[)";
  for (std::size_t i = 0; i < outcome.solutionSteps->size(); ++i) {
    const SolutionStep& step = (*outcome.solutionSteps)[i];
    out += separator;
    out += R"({"title":)";
    appendJsonText(out, *step.title);
    out += R"(,"latexString":)";
    appendJsonText(out, *step.latexString);
    if (!marks.empty()) {
      out += R"(,"check":)";
      appendJsonText(out, nameOf(marks[i].mark));
    }
    out += '}';
    separator = ",";
  }
  out += R"(],"latexString":)";
  appendJsonText(out, *outcome.latexString);
  out += '}';
}
void appendJson(std::string& out, const FatalStop& /*stop*/, Marks /*marks*/) {
  out += R"({"fatal":true})";
}
void appendJson(std::string& out, const ExpansionTooLong& expansion, Marks /*marks*/) {
  out += R"({"huge":)" + std::to_string(expansion.copies) + '}';
}

}  // namespace

std::optional<JsonTask> readJsonTask(std::string_view line) {
  constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";  // Which RFC 8259 lets a reader ignore.
  if (line.starts_with(byteOrderMark)) line.remove_prefix(byteOrderMark.size());

  static simdjson::dom::parser parser;  // Keeps its memory from line to line.
  simdjson::dom::object object;
  if (parser.parse(line.data(), line.size()).get(object) != simdjson::SUCCESS) return std::nullopt;
  JsonTask task;
  bool hasFirst = false;
  bool hasSecond = false;
  bool hasMode = false;
  // Of two values of one name the last counts.
  for (const auto& [name, value] : object) {
    if (name == "first") hasFirst = take(value, task.first);
    if (name == "second") hasSecond = take(value, task.second);
    if (name == "mode") hasMode = take(value, task.mode);
  }
  if (!hasFirst || !hasSecond || !hasMode) return std::nullopt;
  return task;
}

void appendJsonEnding(std::string& out, const Rehearsal& ending, std::span<const exact::CheckedLine> marks) {
  std::visit([&out, marks](const auto& result) { appendJson(out, result, marks); }, ending);
}

}  // namespace tavi::cli
