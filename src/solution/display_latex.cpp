#include "solution/display_latex.h"

#include <algorithm>
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

// True when a rule looks for something that stands across the seam of `left` and `right`.
bool bringsRuleBack(std::string_view left, std::string_view right) {
  const auto isAcross = [left, right](std::string_view occurrence) {
    for (std::size_t split = 1; split < occurrence.size(); ++split) {
      if (left.ends_with(occurrence.substr(0, split)) && right.starts_with(occurrence.substr(split)))
        return true;
    }
    return false;
  };
  const auto isRuleAcross = [&](const Rule& rule) { return isAcross(rule.occurrence); };
  return std::any_of(rulesBeforeZeros.begin(), rulesBeforeZeros.end(), isRuleAcross) ||
         std::any_of(rulesAfterZeros.begin(), rulesAfterZeros.end(), isRuleAcross) ||
         std::any_of(labels.begin(), labels.end(), isAcross);
}

// Rewrites one line in place. The spare string keeps its memory from rule to rule.
class Rewriter {
 public:
  explicit Rewriter(std::string& line) : line_(line) { spare_.reserve(line.size() + line.size() / 2); }

  // Replaces all occurrences, from the left and without overlap; tells whether there was one.
  bool replaceAll(std::string_view occurrence, std::string_view replacement) {
    std::size_t at = line_.find(occurrence);
    if (at == std::string::npos) return false;
    spare_.clear();
    std::size_t from = 0;
    for (; at != std::string::npos; at = line_.find(occurrence, from)) {
      spare_.append(line_, from, at - from);
      spare_ += replacement;
      from = at + occurrence.size();
    }
    spare_.append(line_, from);
    line_.swap(spare_);
    return true;
  }

  bool apply(std::span<const Rule> rules) {
    bool isAnyApplied = false;
    for (const Rule& rule : rules) isAnyApplied |= replaceAll(rule.occurrence, rule.replacement);
    return isAnyApplied;
  }

  // Drops ".0" at the end, and the first ".0" unless a digit follows; one that is followed by a digit shields
  // all later ones.
  void dropZeroFraction() {
    if (line_.ends_with(zeros)) line_.resize(line_.size() - zeros.size());
    const std::size_t at = line_.find(zeros);
    if (at != std::string::npos && !isDigitAt(at + zeros.size())) line_.erase(at, zeros.size());
  }

  // Drops in one sweep what `dropZeroFraction` would drop in as many passes, for a line to which no other
  // rule applies: as long as no drop brings a rule back. Without it a long line costs a pass for each ".0".
  void dropSettledZeroFractions() {
    std::size_t kept = 0;
    std::size_t from = 0;
    for (std::size_t at = line_.find(zeros); at != std::string::npos; at = line_.find(zeros, from)) {
      const std::size_t behind = at + zeros.size();
      std::copy(&line_[from], &line_[at], &line_[kept]);
      kept += at - from;
      from = at;
      const std::string_view line(line_);
      if (isDigitAt(behind) || bringsRuleBack(line.substr(0, kept), line.substr(behind))) break;
      from = behind;
    }
    line_.erase(kept, from - kept);
  }

  bool restoreLabel() {
    for (const std::string_view label : labels) {
      if (!line_.starts_with(label)) continue;
      const std::string_view numeral = label.substr(0, label.size() - closing.size());
      return replaceAll(label, joined({numeral, ")"}));
    }
    return false;
  }

 private:
  static constexpr std::string_view zeros = ".0";

  bool isDigitAt(std::size_t at) const { return at < line_.size() && line_[at] >= '0' && line_[at] <= '9'; }

  std::string& line_;
  std::string spare_;
};

}  // namespace

std::string displayLatex(std::string_view latex) {
  std::string line(latex);
  std::string before;
  Rewriter rewriter(line);
  do {
    before = line;
    rewriter.apply(rulesBeforeZeros);
    const bool isUnchanged = line == before;
    rewriter.dropZeroFraction();
    const bool isRewritten = rewriter.apply(rulesAfterZeros);
    const bool isRelabelled = rewriter.restoreLabel();
    if (isUnchanged && !isRewritten && !isRelabelled && line != before) rewriter.dropSettledZeroFractions();
  } while (line != before);
  rewriter.replaceAll("\\color", "\\;\\color");
  return line;
}

}  // namespace tavi
