#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <QtCore/QBuffer>

#include "commands.h"
#include "json_lines.h"
#include "json_task.h"
#include "picture_files.h"
#include "screenless.h"
#include "solution/rows/row_stack.h"
#include "solution/rows/solution_table_data.h"
#include "solver/rehearsal.h"

namespace tavi::cli {
namespace {

// A phone's page and its rows.
constexpr double pageWidth = 412;
constexpr double rowHeight = 100;

constexpr std::string_view usage = R"(Usage: tavi-cli render power EXPONENT BASE --png FILE [options]
       tavi-cli render root INDEX RADICAND --png FILE [options]
       tavi-cli render --json-lines png|svg|pdf [options]

Draws the whole working as one picture, as the solution screen shows it.

  --png FILE, --svg FILE, --pdf FILE  where to, one or more of them
  --scale S                           pixels to a unit, above 0 and up to 20 (default 2)
  --dark                              the dark appearance
  --language L                        titles in that language, such as de (default en)
  --json-lines png|svg|pdf            answers each task of standard input, given as solve
                                      takes it, by one line: {"svg": text}, {"png": base64}
                                      or {"pdf": base64}; {"malformed": true}, also for
                                      a picture too wide; else as solve answers it

Exit codes: those of solve, and 73 when a file cannot be written.
)";

Picture pictureOf(const SolutionSteps& steps) {
  SolutionTableData data;
  data.solutionSteps = steps;
  data.rowHeight = rowHeight;
  const auto sheet = std::make_shared<RowStack>(data.rows(), pageWidth);
  return {sheet->size(), [sheet](QPainter& painter) { sheet->paint(painter, RowPalette::current()); }};
}

int drawLines(const PictureFiles& settings, const PictureFormat& format) {
  return settings.inAppearance([&] {
    return answerLines([&](std::string_view line, std::string& out) {
      std::optional<JsonTask> task = readJsonTask(line);
      if (!task) return false;
      const Rehearsal ending =
          rehearse({modeOf(task->mode), std::move(task->first), std::move(task->second)});
      const auto* outcome = std::get_if<CalculationOutcome>(&ending);
      if (outcome == nullptr || !outcome->solutionSteps) {
        appendJsonEnding(out, ending);
        return true;
      }
      QBuffer picture;
      picture.open(QIODevice::WriteOnly);
      if (!format.write(picture, pictureOf(*outcome->solutionSteps), settings.scale)) return false;
      const QByteArray text = format.isText ? picture.data() : picture.data().toBase64();
      out += R"({")" + std::string(format.name) + R"(":)";
      appendJsonText(out, {text.data(), static_cast<std::size_t>(text.size())});
      out += '}';
      return true;
    });
  });
}

}  // namespace

int renderCommand(Arguments arguments) {
  PictureFiles files;
  files.scale = 2;
  std::string_view language = "en";
  const PictureFormat* format = nullptr;
  std::vector<std::string_view> operands;
  while (!arguments.empty()) {
    const std::string_view argument = arguments.front();
    if (argument == "--help") {
      std::cout << usage;
      return success;
    }
    if (argument == "--language") {
      if (arguments.size() == 1) return usageError(languageNeed, usage);
      language = arguments[1];
      arguments = arguments.subspan(2);
      continue;
    }
    if (argument == "--json-lines") {
      format = pictureFormat(arguments.size() > 1 ? arguments[1] : "");
      if (format == nullptr) return usageError("--json-lines needs png, svg or pdf", usage);
      arguments = arguments.subspan(2);
      continue;
    }
    const PictureFiles::Read read = files.read(arguments);
    if (read == PictureFiles::Read::done) continue;
    if (read == PictureFiles::Read::wrong) return usageError(PictureFiles::needOf(argument), usage);
    if (argument.starts_with("--")) return usageError("render has no option " + std::string(argument), usage);
    operands.push_back(argument);
    arguments = arguments.subspan(1);
  }
  const Screenless application;
  if (const auto problem = useLanguage(language)) return usageError(*problem, usage);
  if (format != nullptr) {
    const bool isToFile = !files.areNone() || !operands.empty();
    return isToFile ? usageError("--json-lines draws to no file", usage) : drawLines(files, *format);
  }
  if (operands.size() != 3) return usageError("render takes a mode and two operands", usage);
  if (files.areNone()) return usageError("render needs a file to draw to", usage);
  const std::optional<Mode> mode = readMode(operands[0]);
  if (!mode) return usageError("the mode is power or root", usage);

  const Rehearsal ending = rehearse({*mode, std::string(operands[1]), std::string(operands[2])});
  const auto* outcome = std::get_if<CalculationOutcome>(&ending);
  if (outcome != nullptr && outcome->solutionSteps) {
    return files.draw([&] { return pictureOf(*outcome->solutionSteps); });
  }
  return solveCommand(operands);  // tells why there is no working
}

}  // namespace tavi::cli
