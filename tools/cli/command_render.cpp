#include <array>
#include <charconv>
#include <cmath>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

#include <QtCore/QSaveFile>
#include <QtGui/QGuiApplication>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtGui/QPdfWriter>
#include <QtSvg/QSvgGenerator>

#include "appearance/appearance.h"
#include "commands.h"
#include "solution/rows/row_stack.h"
#include "solution/rows/solution_table_data.h"
#include "solver/rehearsal.h"

namespace tavi::cli {
namespace {

// A phone's page and its rows.
constexpr double pageWidth = 412;
constexpr double rowHeight = 100;
// What QImage can paint on.
constexpr double widestImage = 32767;

constexpr std::string_view usage = R"(Usage: tavi-cli render power EXPONENT BASE --png FILE [options]
       tavi-cli render root INDEX RADICAND --png FILE [options]

Draws the whole working as one picture, as the solution screen shows it.

  --png FILE, --svg FILE, --pdf FILE  where to, one or more of them
  --scale S                           pixels to a unit, above 0 and up to 20 (default 2)
  --dark                              the dark appearance

Exit codes: those of solve, and 73 when a file cannot be written.
)";

struct Request {
  std::vector<std::string_view> operands;
  QString png;
  QString svg;
  QString pdf;
  double scale = 2;
  bool isDark = false;
};

QString fileName(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

bool readScale(std::string_view text, double& scale) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), scale);
  return error == std::errc{} && end == text.data() + text.size() && scale > 0 && scale <= 20;
}

void paintScaled(QPaintDevice& device, const RowStack& sheet, double scale) {
  QPainter painter(&device);
  painter.scale(scale, scale);
  sheet.paint(painter, RowPalette::current());
}

bool writePng(QSaveFile& file, const RowStack& sheet, double scale) {
  const QSizeF size = sheet.size() * scale;
  if (size.width() > widestImage || size.height() > widestImage) {
    std::cerr << "tavi-cli: the picture would be " << std::ceil(size.width())
              << " pixels wide; an SVG has no limit\n";
    return false;
  }
  QImage image(size.toSize().expandedTo({1, 1}), QImage::Format_ARGB32_Premultiplied);
  if (image.isNull()) return false;
  image.fill(Qt::transparent);
  paintScaled(image, sheet, scale);
  return image.save(&file, "PNG");
}

bool writeSvg(QSaveFile& file, const RowStack& sheet, double scale) {
  QSvgGenerator generator;
  generator.setOutputDevice(&file);
  generator.setResolution(96);
  const QSizeF size = sheet.size() * scale;
  generator.setSize({static_cast<int>(std::ceil(size.width())), static_cast<int>(std::ceil(size.height()))});
  generator.setViewBox(QRectF({0, 0}, size));
  paintScaled(generator, sheet, scale);
  return true;
}

bool writePdf(QSaveFile& file, const RowStack& sheet, double scale) {
  QPdfWriter writer(&file);
  writer.setResolution(72);
  writer.setPageSize(QPageSize(sheet.size() * scale, QPageSize::Point, {}, QPageSize::ExactMatch));
  writer.setPageMargins({});
  paintScaled(writer, sheet, scale);
  return true;
}

template <typename Write>
bool save(const QString& name, Write write) {
  if (name.isEmpty()) return true;
  QSaveFile file(name);
  const bool isSaved = file.open(QIODevice::WriteOnly) && write(file) && file.commit();
  if (!isSaved) std::cerr << "tavi-cli: cannot write " << name.toStdString() << '\n';
  return isSaved;
}

int draw(const Request& request, const SolutionSteps& steps) {
  // Without a screen unless one is asked for.
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  int argumentCount = 1;
  std::string name = "tavi-cli";
  std::array<char*, 2> arguments{name.data(), nullptr};
  const QGuiApplication application(argumentCount, arguments.data());
  Appearance::shared().force(request.isDark);
  SolutionTableData data;
  data.solutionSteps = steps;
  data.rowHeight = rowHeight;
  const RowStack sheet(data.rows(), pageWidth);
  const bool areSaved =
      save(request.png, [&](QSaveFile& file) { return writePng(file, sheet, request.scale); }) &&
      save(request.svg, [&](QSaveFile& file) { return writeSvg(file, sheet, request.scale); }) &&
      save(request.pdf, [&](QSaveFile& file) { return writePdf(file, sheet, request.scale); });
  return areSaved ? success : cannotWrite;
}

}  // namespace

int renderCommand(Arguments arguments) {
  Request request;
  for (std::size_t index = 0; index < arguments.size(); ++index) {
    const std::string_view argument = arguments[index];
    const bool hasValue = index + 1 < arguments.size();
    if (argument == "--help") {
      std::cout << usage;
      return success;
    }
    if (argument == "--dark") {
      request.isDark = true;
    } else if (argument == "--png" && hasValue) {
      request.png = fileName(arguments[++index]);
    } else if (argument == "--svg" && hasValue) {
      request.svg = fileName(arguments[++index]);
    } else if (argument == "--pdf" && hasValue) {
      request.pdf = fileName(arguments[++index]);
    } else if (argument == "--scale" && hasValue) {
      if (!readScale(arguments[++index], request.scale))
        return usageError("the scale is a number up to 20", usage);
    } else if (argument.starts_with("--")) {
      return usageError("render cannot read " + std::string(argument), usage);
    } else {
      request.operands.push_back(argument);
    }
  }
  if (request.operands.size() != 3) return usageError("render takes a mode and two operands", usage);
  if (request.png.isEmpty() && request.svg.isEmpty() && request.pdf.isEmpty()) {
    return usageError("render needs a file to draw to", usage);
  }
  const std::optional<Mode> mode = readMode(request.operands[0]);
  if (!mode) return usageError("the mode is power or root", usage);

  const Rehearsal ending =
      rehearse({*mode, std::string(request.operands[1]), std::string(request.operands[2])});
  const auto* outcome = std::get_if<CalculationOutcome>(&ending);
  if (outcome != nullptr && outcome->solutionSteps) return draw(request, *outcome->solutionSteps);
  return solveCommand(request.operands);  // tells why there is no working
}

}  // namespace tavi::cli
