#include <array>
#include <charconv>
#include <cmath>
#include <iostream>
#include <optional>
#include <string>

#include <nlohmann/detail/conversions/to_chars.hpp>

#include "commands.h"
#include "json_lines.h"
#include "number/fatal_stop.h"
#include "typeset/bundled_font.h"
#include "typeset/typeset.h"

namespace tavi::cli {
namespace {

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

// A key, with what stands in front of it, and its number.
void appendNumber(std::string& out, std::string_view key, double value) {
  std::array<char, 64> digits{};
  // The JSON library's own writer of numbers, so that a line reads as if the library had written all of it.
  const char* const end = nlohmann::detail::to_chars(digits.data(), digits.data() + digits.size(), value);
  out += key;
  out.append(digits.data(), static_cast<std::size_t>(end - digits.data()));
}

// An answer has many times the length of its line, so it leaves in blocks.
void appendJson(std::string& out, std::string_view latex, double size, const typeset::Layout& layout) {
  out += R"({"latex":)";
  appendJsonText(out, latex);
  appendNumber(out, R"(,"size":)", size);
  appendNumber(out, R"(,"width":)", rounded(layout.width));
  appendNumber(out, R"(,"height":)", rounded(layout.height));
  appendNumber(out, R"(,"depth":)", rounded(layout.depth));
  out += R"(,"glyphs":[)";
  std::string_view separator;
  for (const typeset::Glyph& glyph : layout.glyphs) {
    out += separator;
    out += R"({"cp":)" + std::to_string(static_cast<std::uint32_t>(glyph.codePoint));
    appendNumber(out, R"(,"x":)", rounded(glyph.x));
    appendNumber(out, R"(,"y":)", rounded(glyph.y));
    appendNumber(out, R"(,"size":)", rounded(glyph.size));
    out += '}';
    separator = ",";
    if (!writeBlock(out)) return;
  }
  out += R"(],"rules":[)";
  separator = "";
  for (const typeset::Rule& rule : layout.rules) {
    out += separator;
    appendNumber(out, R"({"x":)", rounded(rule.x));
    appendNumber(out, R"(,"y":)", rounded(rule.y));
    appendNumber(out, R"(,"w":)", rounded(rule.width));
    appendNumber(out, R"(,"h":)", rounded(rule.height));
    out += '}';
    separator = ",";
    if (!writeBlock(out)) return;
  }
  out += R"(],"error":)";
  if (layout.error) {
    appendJsonText(out, layout.error->text());
  } else {
    out += "null";
  }
  out += '}';
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
    } else if (argument == "--size") {
      const auto read = readSize(arguments.size() > 1 ? arguments[1] : "");
      if (!read) return usageError("--size needs a number above 0 and up to 10000", usage);
      size = *read;
      arguments = arguments.subspan(1);
    } else {
      return usageError("typeset cannot read " + std::string(argument), usage);
    }
  }
  if (!isJsonLines) return usageError("typeset needs --json-lines", usage);

  auto font = typeset::MathFont::open(typeset::bundledMathFont());
  if (!font) fatalStop("the bundled font has no mathematics");
  // Room for the lines of a power with 10,000 copies; a layout has several hundred times the size of its
  // line.
  constexpr LineRules rules{.longest = 512UL * 1024};
  const auto answer = [&font, size](std::string_view line, std::string& out) {
    appendJson(out, line, size, typeset::typeset(line, *font, size));
    return true;
  };
  return answerLines(answer, rules);
}

}  // namespace tavi::cli
