#include "input/pasted_text.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <utility>

#include "number/digit.h"
#include "number/text.h"

namespace tavi {

namespace {

// More than anyone types; what is longer was not meant for a field.
constexpr std::size_t longestText = 400;
constexpr int largestShift = 30;

// Plain signs for those of print. P stands for π from here on, and ^ goes before raised figures.
struct Sign {
  std::string_view printed;
  std::string_view plain;
};
constexpr auto signs = std::to_array<Sign>({
    {"−", "-"},      {"–", "-"},      {"‐", "-"},      {"‑", "-"},     {"‒", "-"},      {"－", "-"},
    {"＋", "+"},     {"⁄", "/"},      {"∕", "/"},      {"÷", "/"},     {"／", "/"},     {":", "/"},
    {"×", "*"},      {"·", "*"},      {"⋅", "*"},      {"∙", "*"},     {"✕", "*"},      {"＊", "*"},
    {"π", "P"},      {"𝜋", "P"},      {"pi", "P"},     {"Pi", "P"},    {"X", "x"},      {"Y", "y"},
    {"Z", "z"},      {"E", "e"},      {"’", "'"},      {"（", "("},    {"）", ")"},     {"．", "."},
    {"，", ","},     {"\t", " "},     {"\n", " "},     {"\r", " "},    {"\u00a0", " "}, {"\u2007", " "},
    {"\u2009", " "}, {"\u202f", " "}, {"\u3000", " "}, {"\ufeff", ""}, {"\u200b", ""},  {"½", " 1/2"},
    {"⅓", " 1/3"},   {"⅔", " 2/3"},   {"¼", " 1/4"},   {"¾", " 3/4"},  {"⅕", " 1/5"},   {"⅖", " 2/5"},
    {"⅗", " 3/5"},   {"⅘", " 4/5"},   {"⅙", " 1/6"},   {"⅚", " 5/6"},  {"⅛", " 1/8"},   {"⅜", " 3/8"},
    {"⅝", " 5/8"},   {"⅞", " 7/8"},
});
constexpr auto raisedSigns = std::to_array<Sign>({{"⁰", "0"},
                                                  {"¹", "1"},
                                                  {"²", "2"},
                                                  {"³", "3"},
                                                  {"⁴", "4"},
                                                  {"⁵", "5"},
                                                  {"⁶", "6"},
                                                  {"⁷", "7"},
                                                  {"⁸", "8"},
                                                  {"⁹", "9"},
                                                  {"⁻", "-"},
                                                  {"⁺", "+"}});
// The first of ten digits of a script.
constexpr std::array<std::string_view, 2> otherZeros{"０", "०"};

std::optional<std::string> plainDigit(std::string_view text) {
  for (const std::string_view zero : otherZeros) {
    const std::string_view head = zero.substr(0, 2);
    if (text.size() < 3 || !text.starts_with(head)) continue;
    const int value = static_cast<unsigned char>(text[2]) - static_cast<unsigned char>(zero[2]);
    if (0 <= value && value <= 9) return std::to_string(value);
  }
  return std::nullopt;
}

const Sign* signAt(const auto& table, std::string_view text) {
  const auto found =
      std::ranges::find_if(table, [text](const Sign& sign) { return text.starts_with(sign.printed); });
  return found == table.end() ? nullptr : &*found;
}

std::string plainText(std::string_view text) {
  std::string plain;
  bool isRaised = false;
  while (!text.empty()) {
    const bool wasRaised = std::exchange(isRaised, false);
    std::size_t length = 1;
    if (const Sign* raised = signAt(raisedSigns, text)) {
      isRaised = true;
      if (!wasRaised) plain += '^';
      plain += raised->plain;
      length = raised->printed.size();
    } else if (const Sign* sign = signAt(signs, text)) {
      plain += sign->plain;
      length = sign->printed.size();
    } else if (const auto digit = plainDigit(text)) {
      plain += *digit;
      length = 3;
    } else {
      plain += text.front();
    }
    text.remove_prefix(length);
  }
  return plain;
}

bool isDigit(char character) {
  return character >= '0' && character <= '9';
}

// Digits in groups of three between separators, as one; absent where the groups are others.
std::optional<std::string> ungrouped(std::string_view text, char separator) {
  std::string digits;
  std::size_t group = 0;
  bool isFirst = true;
  for (const char character : text) {
    if (character != separator) {
      if (!isDigit(character)) return std::nullopt;
      digits += character;
      ++group;
      continue;
    }
    if (group == 0 || group > 3 || (!isFirst && group != 3)) return std::nullopt;
    isFirst = false;
    group = 0;
  }
  if (!isFirst && group != 3) return std::nullopt;
  return digits;
}

// A decimal number as the keypad types it. A single comma is a decimal comma, as it is on the keyboard.
std::optional<std::string> plainDecimal(std::string_view text) {
  std::string_view whole = text;
  std::string_view decimals;
  const std::size_t last = text.find_last_of(".,");
  if (last != std::string_view::npos) {
    const char mark = text[last];
    const bool isGrouping = std::count(text.begin(), text.end(), mark) > 1;
    if (!isGrouping) {
      whole = text.substr(0, last);
      decimals = text.substr(last + 1);
    }
  }
  if (!std::ranges::all_of(decimals, isDigit)) return std::nullopt;
  const std::size_t at = whole.find_first_of(" '.,");
  const auto digits = ungrouped(whole, at == std::string_view::npos ? ' ' : whole[at]);
  if (!digits || (digits->empty() && decimals.empty())) return std::nullopt;
  return decimals.empty() ? *digits : joined({*digits, ".", decimals});
}

// The decimal number times a power of ten.
std::string shifted(std::string_view decimal, int places) {
  const std::size_t point = std::min(decimal.find('.'), decimal.size());
  std::string digits = replacedAll(decimal, ".", "");
  std::int64_t at = static_cast<std::int64_t>(point) + places;
  if (at < 0) digits.insert(0, static_cast<std::size_t>(-at), '0');
  at = std::max<std::int64_t>(at, 0);
  if (at > static_cast<std::int64_t>(digits.size())) digits.resize(static_cast<std::size_t>(at), '0');
  std::string whole = digits.substr(0, static_cast<std::size_t>(at));
  std::string decimals = digits.substr(static_cast<std::size_t>(at));
  whole.erase(0, std::min(whole.find_first_not_of('0'), whole.size()));
  decimals.resize(decimals.find_last_not_of('0') + 1);
  if (whole.empty()) whole = "0";
  return decimals.empty() ? whole : joined({whole, ".", decimals});
}

struct Value {
  bool isNegative = false;
  std::string numerator;
  std::string denominator;  // empty without a bar
  bool isBracketed = false;

  std::string text() const {
    const std::string number = denominator.empty() ? numerator : joined({numerator, "/", denominator});
    return replacedAll(joined({isNegative ? "-" : "", number}), "P", piConstant().key);
  }
  // A power of "-3" or of "1/2" without brackets could also be meant of a part of it.
  bool isOnePiece() const { return isBracketed || (!isNegative && denominator.empty()); }
};

class Reader {
 public:
  explicit Reader(std::string_view text) : rest_(text) {}

  std::optional<PastedText> read() {
    const std::optional<Value> value = fraction();
    if (!value) return std::nullopt;
    PastedText pasted{value->text()};
    if (take('^')) {
      const std::optional<Value> exponent = part();
      if (!exponent || !value->isOnePiece()) return std::nullopt;
      pasted.exponent = exponent->text();
    }
    skipBlanks();
    return rest_.empty() ? std::optional(pasted) : std::nullopt;
  }

 private:
  // part [ / part ]
  std::optional<Value> fraction() {
    std::optional<Value> value = part();
    if (!value || !take('/')) return value;
    const std::optional<Value> below = part();
    if (!below || !value->denominator.empty() || !below->denominator.empty()) return std::nullopt;
    value->denominator = below->numerator;
    value->isNegative = value->isNegative != below->isNegative;
    value->isBracketed = false;
    return value;
  }

  // [ sign ] ( number | "(" fraction ")" )
  std::optional<Value> part() {
    const bool isNegative = take('-');
    if (!isNegative) take('+');
    std::optional<Value> value;
    if (take('(')) {
      value = fraction();
      if (!value || !take(')')) return std::nullopt;
      value->isBracketed = true;
    } else {
      value = number();
    }
    if (value && isNegative) {
      value->isNegative = !value->isNegative;
      value->isBracketed = false;
    }
    return value;
  }

  // decimal [ power of ten ] [ symbol ], a symbol alone, or a mixed number
  std::optional<Value> number() {
    skipBlanks();
    const std::string_view figures = run();
    Value value;
    if (figures.empty()) {
      value.numerator = symbol();
      return value.numerator.empty() ? std::nullopt : std::optional(value);
    }
    if (rest_.starts_with('/') && figures.find(' ') != std::string_view::npos) return mixed(figures);
    const std::optional<std::string> decimal = plainDecimal(figures);
    if (!decimal) return std::nullopt;
    value.numerator = *decimal;
    if (const std::optional<int> places = powerOfTen()) {
      if (std::abs(*places) > largestShift) return std::nullopt;
      value.numerator = shifted(*decimal, *places);
    }
    value.numerator += symbol();
    return value;
  }

  // Digits, points, commas and apostrophes, and blanks between digits.
  std::string_view run() {
    std::size_t length = 0;
    while (length < rest_.size()) {
      const char character = rest_[length];
      const bool isBlank = character == ' ' && length > 0 && isDigit(rest_[length - 1]) &&
                           length + 1 < rest_.size() && isDigit(rest_[length + 1]);
      const bool isFigure = isDigit(character) || character == '.' || character == ',' || character == '\'';
      if (!isBlank && !isFigure) break;
      ++length;
    }
    const std::string_view figures = rest_.substr(0, length);
    rest_.remove_prefix(length);
    return figures;
  }

  // "2 1/3" is 7/3. Three digits behind the blank can as well be a group.
  std::optional<Value> mixed(std::string_view figures) {
    const std::size_t blank = figures.rfind(' ');
    take('/');
    const auto whole = integer(figures.substr(0, blank));
    const auto above = integer(figures.substr(blank + 1));
    const auto below = integer(run());
    if (!whole || !above || !below) return std::nullopt;
    if (figures.size() - blank == 4 && *above < *below) return std::nullopt;
    if (*above >= *below) {
      const auto numerator = plainDecimal(figures);
      return numerator ? std::optional(Value{false, *numerator, std::to_string(*below)}) : std::nullopt;
    }
    return Value{false, std::to_string(*whole * *below + *above), std::to_string(*below)};
  }

  static std::optional<std::int64_t> integer(std::string_view text) {
    constexpr std::size_t mostDigits = 9;  // so that no product is too large
    std::int64_t value = 0;
    const char* const end = text.data() + text.size();
    const auto [behind, error] = std::from_chars(text.data(), end, value);
    const bool isRead = error == std::errc{} && behind == end && text.size() <= mostDigits;
    return isRead ? std::optional(value) : std::nullopt;
  }

  // "e5", "*10^5"; nothing is taken where there is none.
  std::optional<int> powerOfTen() {
    const std::string_view before = rest_;
    const bool isWritten = rest_.starts_with('e')
                               ? take('e')
                               : take('*') && take('1') && rest_.starts_with('0') && take('0') && take('^');
    if (isWritten) {
      const bool isNegative = take('-');
      if (!isNegative) take('+');
      if (const auto places = integer(run())) return static_cast<int>(isNegative ? -*places : *places);
    }
    rest_ = before;
    return std::nullopt;
  }

  std::string symbol() {
    constexpr std::string_view symbols = "Pxyz";
    const std::string_view before = rest_;
    take('*');
    skipBlanks();
    if (!rest_.empty() && symbols.find(rest_.front()) != std::string_view::npos) {
      std::string taken(1, rest_.front());
      rest_.remove_prefix(1);
      return taken;
    }
    rest_ = before;
    return "";
  }

  void skipBlanks() { rest_.remove_prefix(std::min(rest_.find_first_not_of(' '), rest_.size())); }

  // Takes the character, and blanks before it, if it comes next.
  bool take(char character) {
    const std::size_t at = rest_.find_first_not_of(' ');
    if (at == std::string_view::npos || rest_[at] != character) return false;
    rest_.remove_prefix(at + 1);
    return true;
  }

  std::string_view rest_;
};

}  // namespace

std::optional<PastedText> readPasted(std::string_view text) {
  if (text.size() > longestText) return std::nullopt;
  const std::string plain = plainText(text);
  return Reader(plain).read();
}

}  // namespace tavi
