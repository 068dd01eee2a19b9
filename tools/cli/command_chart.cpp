#include <iostream>
#include <string>

#include "chart_answer.h"
#include "commands.h"

namespace tavi::cli {
namespace {

constexpr std::string_view usage = R"(Usage: tavi-cli chart --json-lines

Answers each line {"id": any, "width": W, "charts": [{"kind": "LineChartData", ...}]} of
standard input, which describes a row of charts, by one line: {"id", "frame": [x, y, w, h],
"view"} with what is to be drawn in the frame, {"id", "fatal": reason} where that would end
the process, or {"id": null, "error": reason} for a line that is no such object.
)";

}  // namespace

int chartCommand(Arguments arguments) {
  if (arguments.size() == 1 && arguments.front() == "--help") {
    std::cout << usage;
    return success;
  }
  if (arguments.size() != 1 || arguments.front() != "--json-lines") {
    return usageError("chart needs --json-lines", usage);
  }
  for (std::string line; std::getline(std::cin, line);) answerChartLine(std::cout, line);
  return success;
}

}  // namespace tavi::cli
