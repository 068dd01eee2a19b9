#include <charconv>
#include <cmath>
#include <iostream>
#include <optional>
#include <string>

#include <nlohmann/json.hpp>

#include "commands.h"
#include "number/fatal_stop.h"
#include "typeset/bundled_font.h"
#include "typeset/typeset.h"

namespace tavi::cli {
namespace {

using nlohmann::ordered_json;

constexpr std::string_view usage = R"(Usage: tavi-cli typeset --json-lines [--size EM]

Sets each line of LaTeX from standard input in display style and answers it by one line:
{"latex", "size", "width", "height", "depth", "glyphs": [{"cp", "x", "y", "size"}...],
 "rules": [{"x", "y", "w", "h"}...], "error": text or null}
Lengths are in the unit of the size, y upwards from the baseline; a rule is given by its
lower left corner. "cp" is the code point drawn. A faulty line is set as far as it reads.

  --size EM  the em, above 0 and up to 10000 (default 20)
)";

// Coordinates to the millionth: what is left of doubles beyond that is noise.
double rounded(double value) {
  return std::round(value * 1e6) / 1e6 + 0.0;
}

ordered_json asJson(const std::string& latex, double size, const typeset::Layout& layout) {
  ordered_json glyphs = ordered_json::array();
  for (const typeset::Glyph& glyph : layout.glyphs) {
    glyphs.push_back({{"cp", static_cast<std::uint32_t>(glyph.codePoint)},
                      {"x", rounded(glyph.x)},
                      {"y", rounded(glyph.y)},
                      {"size", rounded(glyph.size)}});
  }
  ordered_json rules = ordered_json::array();
  for (const typeset::Rule& rule : layout.rules) {
    rules.push_back({{"x", rounded(rule.x)},
                     {"y", rounded(rule.y)},
                     {"w", rounded(rule.width)},
                     {"h", rounded(rule.height)}});
  }
  return {{"latex", latex},
          {"size", size},
          {"width", rounded(layout.width)},
          {"height", rounded(layout.height)},
          {"depth", rounded(layout.depth)},
          {"glyphs", std::move(glyphs)},
          {"rules", std::move(rules)},
          {"error", layout.error ? ordered_json(layout.error->text()) : ordered_json(nullptr)}};
}

std::optional<double> readSize(std::string_view text) {
  double size = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), size);
  if (error != std::errc{} || end != text.data() + text.size() || !(size > 0 && size <= 10000))
    return std::nullopt;
  return size;
}

}  // namespace

int typesetCommand(Arguments arguments) {
  double size = 20;
  bool isJsonLines = false;
  for (; !arguments.empty(); arguments = arguments.subspan(1)) {
    const std::string_view argument = arguments.front();
    if (argument == "--help") {
      std::cout << usage;
      return success;
    }
    if (argument == "--json-lines") {
      isJsonLines = true;
    } else if (argument == "--size" && arguments.size() > 1) {
      arguments = arguments.subspan(1);
      const auto read = readSize(arguments.front());
      if (!read) return usageError(std::string(arguments.front()) + " is no size", usage);
      size = *read;
    } else {
      return usageError("typeset cannot read " + std::string(argument), usage);
    }
  }
  if (!isJsonLines) return usageError("typeset needs --json-lines", usage);

  auto font = typeset::MathFont::open(typeset::bundledMathFont());
  if (!font) fatalStop("the bundled font has no mathematics");
  for (std::string line; std::getline(std::cin, line);) {
    const ordered_json answer = asJson(line, size, typeset::typeset(line, *font, size));
    std::cout << answer.dump(-1, ' ', false, ordered_json::error_handler_t::replace) << std::endl;
  }
  return success;
}

}  // namespace tavi::cli
