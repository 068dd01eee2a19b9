#include "solution/display_latex.h"

#include <array>
#include <cstddef>
#include <span>

#include "number/text.h"

namespace tavi {

namespace {

struct Rule {
  std::string_view occurrence;
  std::string_view replacement;
};

// The rules of one pass, in order; the handling of ".0" stands between the two tables.
constexpr std::array<Rule, 10> rulesBeforeZeros{{
    {"  ", " "},
    {"\\quad", "\\quad "},
    {". ", " "},
    {"(", "\\left("},
    {")", "\\right)"},
    {"\\left\\left", "\\left"},
    {"\\right\\right", "\\right"},
    {" 1x", "x"},
    {" 0x", ""},
    {".0\\quad", "\\quad"},
}};

constexpr std::array<Rule, 11> rulesAfterZeros{{
    {"+-", "-"},
    {"-+", "-"},
    {"+ -", "-"},
    {"- +", "-"},
    {"+ +", "+"},
    {"++", "+"},
    {"--", "+"},
    {"- -", "+"},
    {"*", "\\cdot "},
    {"= +", "="},
    {"=+", "="},
}};

// List labels keep their plain parenthesis at the beginning of a line.
constexpr std::array<std::string_view, 10> labels{"I\\right)",  "II\\right)", "III\\right)", "IV\\right)",
                                                  "V\\right)",  "VI\\right)", "VII\\right)", "VIII\\right)",
                                                  "IX\\right)", "X\\right)"};
constexpr std::string_view closing = "\\right)";

void apply(std::span<const Rule> rules, std::string& line) {
  for (const Rule& rule : rules) {
    if (line.find(rule.occurrence) != std::string::npos) {
      line = replacedAll(line, rule.occurrence, rule.replacement);
    }
  }
}

// Drops ".0" at the end, and the first ".0" unless a digit follows; one that is followed by a digit shields
// all later ones.
void dropZeroFraction(std::string& line) {
  constexpr std::string_view zeros = ".0";
  if (line.ends_with(zeros)) line.resize(line.size() - zeros.size());
  const std::size_t at = line.find(zeros);
  if (at == std::string::npos) return;
  const std::size_t behind = at + zeros.size();
  if (behind < line.size() && line[behind] >= '0' && line[behind] <= '9') return;
  line.erase(at, zeros.size());
}

void restoreLabel(std::string& line) {
  for (const std::string_view label : labels) {
    if (!line.starts_with(label)) continue;
    const std::string_view numeral = label.substr(0, label.size() - closing.size());
    line = replacedAll(line, label, joined({numeral, ")"}));
  }
}

}  // namespace

std::string displayLatex(std::string_view latex) {
  std::string line(latex);
  std::string before;
  do {
    before = line;
    apply(rulesBeforeZeros, line);
    dropZeroFraction(line);
    apply(rulesAfterZeros, line);
    restoreLabel(line);
  } while (line != before);
  return replacedAll(line, "\\color", "\\;\\color");
}

}  // namespace tavi
