#include "json_task.h"

#include <utility>

#include <nlohmann/json.hpp>

#include "json_lines.h"

namespace tavi::cli {
namespace {

using nlohmann::json;

// Takes the three values as the parser meets them; a tree of the line would cost more than its task.
class TaskReader : public nlohmann::json_sax<json> {
 public:
  // Absent unless the line was an object with all three and of the right kinds. Of two alike the last counts.
  std::optional<JsonTask> task() && {
    if (!isObject_ || first_ != Found::yes || second_ != Found::yes || mode_ != Found::yes)
      return std::nullopt;
    return std::move(task_);
  }

  bool null() override { return text(std::nullopt); }
  bool string(string_t& value) override { return text(std::move(value)); }
  bool number_integer(number_integer_t value) override { return integer(value); }
  bool number_unsigned(number_unsigned_t value) override { return integer(static_cast<std::int64_t>(value)); }
  bool boolean(bool /*value*/) override { return other(); }
  bool number_float(number_float_t /*value*/, const string_t& /*text*/) override { return other(); }
  bool binary(binary_t& /*value*/) override { return other(); }

  bool start_object(std::size_t /*size*/) override {
    if (depth_ == 0) isObject_ = true;
    return open();
  }
  bool start_array(std::size_t /*size*/) override { return open(); }
  bool end_object() override { return close(); }
  bool end_array() override { return close(); }

  bool key(string_t& name) override {
    if (depth_ > 1) return true;
    at_ = name == "first" ? &first_ : name == "second" ? &second_ : name == "mode" ? &mode_ : nullptr;
    return true;
  }

  bool parse_error(std::size_t /*position*/, const std::string& /*token*/,
                   const json::exception& /*error*/) override {
    return false;
  }

 private:
  enum class Found { no, yes, wrong };

  bool text(std::optional<std::string> value) {
    if (depth_ != 1 || at_ == nullptr || at_ == &mode_) return other();
    *at_ = Found::yes;
    (at_ == &first_ ? task_.first : task_.second) = std::move(value);
    return true;
  }

  bool integer(std::int64_t value) {
    if (depth_ != 1 || at_ != &mode_) return other();
    mode_ = Found::yes;
    task_.mode = value;
    return true;
  }

  bool other() {
    if (depth_ == 1 && at_ != nullptr) *at_ = Found::wrong;
    return true;
  }

  bool open() {
    other();
    ++depth_;
    return true;
  }

  bool close() {
    --depth_;
    return true;
  }

  JsonTask task_;
  Found first_ = Found::no;
  Found second_ = Found::no;
  Found mode_ = Found::no;
  Found* at_ = nullptr;  // the value that the key in front names
  int depth_ = 0;
  bool isObject_ = false;
};

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
  TaskReader reader;
  if (!json::sax_parse(line, &reader)) return std::nullopt;
  return std::move(reader).task();
}

void appendJsonEnding(std::string& out, const Rehearsal& ending, std::span<const exact::CheckedLine> marks) {
  std::visit([&out, marks](const auto& result) { appendJson(out, result, marks); }, ending);
}

}  // namespace tavi::cli
