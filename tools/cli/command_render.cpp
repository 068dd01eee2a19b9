#include <iostream>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "commands.h"
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

Draws the whole working as one picture, as the solution screen shows it.

  --png FILE, --svg FILE, --pdf FILE  where to, one or more of them
  --scale S                           pixels to a unit, above 0 and up to 20 (default 2)
  --dark                              the dark appearance
  --language L                        titles in that language, such as de (default en)

Exit codes: those of solve, and 73 when a file cannot be written.
)";

Picture pictureOf(const SolutionSteps& steps) {
  SolutionTableData data;
  data.solutionSteps = steps;
  data.rowHeight = rowHeight;
  const auto sheet = std::make_shared<RowStack>(data.rows(), pageWidth);
  return {sheet->size(), [sheet](QPainter& painter) { sheet->paint(painter, RowPalette::current()); }};
}

}  // namespace

int renderCommand(Arguments arguments) {
  PictureFiles files;
  files.scale = 2;
  std::string_view language = "en";
  std::vector<std::string_view> operands;
  while (!arguments.empty()) {
    const std::string_view argument = arguments.front();
    if (argument == "--help") {
      std::cout << usage;
      return success;
    }
    if (argument == "--language" && arguments.size() > 1) {
      language = arguments[1];
      arguments = arguments.subspan(2);
      continue;
    }
    const PictureFiles::Read read = files.read(arguments);
    if (read == PictureFiles::Read::done) continue;
    if (read == PictureFiles::Read::wrong || argument.starts_with("--")) {
      return usageError("render cannot read " + std::string(argument), usage);
    }
    operands.push_back(argument);
    arguments = arguments.subspan(1);
  }
  if (operands.size() != 3) return usageError("render takes a mode and two operands", usage);
  if (files.areNone()) return usageError("render needs a file to draw to", usage);
  const std::optional<Mode> mode = readMode(operands[0]);
  if (!mode) return usageError("the mode is power or root", usage);

  const Screenless application;
  if (const auto problem = useLanguage(language)) return usageError(*problem, usage);
  const Rehearsal ending = rehearse({*mode, std::string(operands[1]), std::string(operands[2])});
  const auto* outcome = std::get_if<CalculationOutcome>(&ending);
  if (outcome != nullptr && outcome->solutionSteps) {
    return files.draw([&] { return pictureOf(*outcome->solutionSteps); });
  }
  return solveCommand(operands);  // tells why there is no working
}

}  // namespace tavi::cli
