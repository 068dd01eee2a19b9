#include <array>
#include <charconv>
#include <cmath>
#include <iostream>
#include <optional>
#include <string>
#include <variant>

#include <QtCore/QFile>
#include <QtGui/QPainter>

#include "appearance/interface_colors.h"
#include "chart_answer.h"
#include "charts/chart_reader.h"
#include "charts/view/chart_picture.h"
#include "commands.h"
#include "json_lines.h"
#include "number/fatal_stop.h"
#include "picture_files.h"
#include "screenless.h"

namespace tavi::cli {
namespace {

constexpr std::string_view usage = R"(Usage: tavi-cli chart FILE --png FILE [options]
       tavi-cli chart --json-lines

Draws the row of charts that FILE describes as {"width": W, "charts": [{"kind":
"LineChartData", ...}]}: each chart by its class and the names of its fields.

  --png FILE, --svg FILE, --pdf FILE  where to, one or more of them
  --size WxH                          of the row in place of its own width and ratio
  --scale S                           pixels to a unit, above 0 and up to 20 (default 1)
  --dark                              the dark appearance

  --json-lines  answers each such object of standard input, which may have an "id", by
                one line: {"id", "frame": [x, y, w, h], "view"} with what is to be drawn
                in the frame, {"id", "fatal": reason} where that would end the process,
                {"id": null, "error": reason} for a line that is no such object

Exit codes: 3 the charts would end the process, 65 FILE is no such object, 73 a file
cannot be written.
)";

// "412x206".
std::optional<QSizeF> readSize(std::string_view text) {
  constexpr double largest = 10000;
  const std::size_t cross = std::min(text.find('x'), text.size());
  std::array<double, 2> sides{};
  for (std::size_t index = 0; index < sides.size(); ++index) {
    const std::string_view side =
        index == 0 ? text.substr(0, cross) : text.substr(std::min(cross + 1, text.size()));
    const auto [end, error] = std::from_chars(side.data(), side.data() + side.size(), sides.at(index));
    const bool isRead = error == std::errc{} && end == side.data() + side.size();
    if (!isRead || !(sides.at(index) >= 1 && sides.at(index) <= largest)) return std::nullopt;
  }
  return QSizeF(sides[0], sides[1]);
}

int answerDescriptions() {
  // Room for some hundred thousand points.
  constexpr LineRules rules{.longest = 16UL * 1024 * 1024,
                            .malformed = R"({"id":null,"error":"a line of more than 16 MiB"})"};
  const auto answer = [](std::string_view line, std::string& out) {
    answerChartLine(line, out);
    return true;
  };
  return answerLines(answer, rules);
}

int wrongFile(std::string_view name, std::string_view reason) {
  std::cerr << "tavi-cli: " << name << ": " << reason << '\n';
  return wrongData;
}

int drawFile(const std::string& name, const std::optional<QSizeF>& size, const PictureFiles& files) {
  QFile file(QString::fromStdString(name));
  if (!file.open(QIODevice::ReadOnly)) return wrongFile(name, "cannot be read");
  const auto read = readChartRequest(file.readAll().toStdString());
  if (const auto* error = std::get_if<ChartRequestError>(&read)) return wrongFile(name, error->reason);
  const auto& request = std::get<ChartRequest>(read);
  if (request.charts.empty()) return wrongFile(name, "a row without charts");
  try {
    const ChartFrame frame = ChartManager::chartFrame(*request.charts.front(), request.width);
    const QSizeF row = size.value_or(QSizeF(request.width, frame.y + frame.height + frame.y));
    if (!(row.width() >= 1 && row.height() >= 1)) return wrongFile(name, "a row without a size");
    std::shared_ptr<const ChartView> view;
    if (auto made = ChartManager::chartView(request.charts))
      view = std::make_shared<const ChartView>(std::move(*made));
    const Screenless application;
    return files.draw([&]() -> Picture {
      return {row, [&](QPainter& painter) {
                painter.fillRect(QRectF({}, row), InterfaceColor::page());
                if (view) paintChartRow(painter, row, view, ChartPalette::current());
              }};
    });
  } catch (const FatalStop& stop) {
    std::cerr << "These charts would end the process: " << stop.reason << '\n';
    return fatal;
  }
}

}  // namespace

int chartCommand(Arguments arguments) {
  PictureFiles files;
  std::optional<QSizeF> size;
  std::optional<std::string> name;
  bool isJsonLines = false;
  const bool isAlone = arguments.size() == 1;
  while (!arguments.empty()) {
    const std::string_view argument = arguments.front();
    if (argument == "--help") {
      std::cout << usage;
      return success;
    }
    const PictureFiles::Read read = files.read(arguments);
    if (read == PictureFiles::Read::done) continue;
    if (read == PictureFiles::Read::wrong) return usageError(PictureFiles::needOf(argument), usage);
    arguments = arguments.subspan(1);
    if (argument == "--json-lines") {
      isJsonLines = true;
    } else if (argument == "--size") {
      size = readSize(arguments.empty() ? "" : arguments.front());
      if (!size) return usageError("--size needs a width and a height, such as 412x206", usage);
      arguments = arguments.subspan(1);
    } else if (!argument.starts_with("--") && !name) {
      name = argument;
    } else {
      return usageError("chart cannot read " + std::string(argument), usage);
    }
  }
  if (isJsonLines)
    return isAlone ? answerDescriptions() : usageError("--json-lines takes nothing else", usage);
  if (!name) return usageError("chart needs a file that describes a row of charts", usage);
  if (files.areNone()) return usageError("chart needs a file to draw to", usage);
  return drawFile(*name, size, files);
}

}  // namespace tavi::cli
