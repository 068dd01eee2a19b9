#include "number/number_text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>

#include <locale.h>  // NOLINT(modernize-deprecated-headers): newlocale is no C++
#include <stdlib.h>  // NOLINT(modernize-deprecated-headers): nor is strtod_l

#include "number/fatal_stop.h"

namespace tavi {

namespace {

// Enough for the shortest digits of any double in either notation below 1e16.
using Buffer = std::array<char, 32>;

// Below it the shortest digits of a whole number are all of its digits.
constexpr double exactIntegers = 1e15;

// Below it six significant digits are all digits of a whole number.
constexpr double sixDigits = 1e6;

// Most numbers here are whole ones, whose digits cost a tenth of those of a fraction. Zero may have a sign
// and is none of them.
bool isWholeBelow(double limit, double value) {
  return std::abs(value) < limit && value == std::trunc(value) && value != 0;
}

std::string wholeText(double value) {
  return std::to_string(static_cast<std::int64_t>(value));
}

std::string_view written(const Buffer& buffer, std::to_chars_result result) {
  return {buffer.data(), static_cast<std::size_t>(result.ptr - buffer.data())};
}

// The shortest digits of a finite number other than zero: 0.DIGITS times 10 to the power `pointAt`.
struct ShortestDigits {
  std::string digits;
  int pointAt = 0;
};

ShortestDigits shortestDigits(double magnitude) {
  Buffer buffer;
  const auto result =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude, std::chars_format::scientific);
  const std::string_view text = written(buffer, result);
  const std::size_t mark = text.find('e');
  ShortestDigits shortest;
  shortest.digits = text[0];
  if (mark > 2) shortest.digits += text.substr(2, mark - 2);
  const std::size_t exponentAt = mark + (text[mark + 1] == '+' ? 2 : 1);
  std::from_chars(text.data() + exponentAt, text.data() + text.size(), shortest.pointAt);
  ++shortest.pointAt;
  return shortest;
}

// So that at most `fractionDigits` digits stay behind the point; drops trailing zeros. No
// digits are left of a number that rounds to zero.
void roundHalfToEven(ShortestDigits& number, int fractionDigits) {
  std::string& digits = number.digits;
  const int kept = number.pointAt + fractionDigits;
  if (kept < 0) {
    digits.clear();
  } else if (static_cast<std::size_t>(kept) < digits.size()) {
    const auto keptCount = static_cast<std::size_t>(kept);
    const char first = digits[keptCount];
    const bool isTie = first == '5' && keptCount + 1 == digits.size();
    const bool isOdd = keptCount > 0 && (digits[keptCount - 1] - '0') % 2 == 1;
    const bool isUp = isTie ? isOdd : first >= '5';
    digits.resize(keptCount);
    if (isUp) {
      while (digits.ends_with('9')) digits.pop_back();
      if (digits.empty()) {
        digits.assign(1, '1');
        ++number.pointAt;
      } else {
        ++digits.back();
      }
    }
  }
  while (digits.ends_with('0')) digits.pop_back();
}

// strtod needs a locale object of its own: the C locale, whatever the program has set.
locale_t posixLocale() {
  static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
  if (locale == nullptr) fatalStop("no memory for the C locale");
  return locale;
}

}  // namespace

std::string doubleText(double value) {
  if (std::isnan(value)) return "nan";
  if (std::isinf(value)) return value < 0 ? "-inf" : "inf";
  if (isWholeBelow(exactIntegers, value)) return wholeText(value) + ".0";
  const double magnitude = std::abs(value);
  const bool isPointForm = magnitude == 0 || (magnitude >= 0.0001 && magnitude < 1e16);
  Buffer buffer;
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                    isPointForm ? std::chars_format::fixed : std::chars_format::scientific);
  std::string text(written(buffer, result));
  if (isPointForm && text.find('.') == std::string::npos) text += ".0";
  return text;
}

std::string generalText(double value) {
  if (isWholeBelow(sixDigits, value)) return wholeText(value);
  Buffer buffer;
  const auto result =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::general, 6);
  return std::string(written(buffer, result));
}

double readGeneralText(std::string_view text) {
  double value = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
  if (result.ec != std::errc()) fatalStop("a text that is no number");
  return value;
}

double roundedToSixDigits(double value) {
  return isWholeBelow(sixDigits, value) ? value : readGeneralText(generalText(value));
}

std::optional<double> readNumber(const std::string& text) {
  const char first = text.empty() ? '\0' : text.front();
  if (first == '\0' || first == ' ' || (first >= '\t' && first <= '\r')) return std::nullopt;
  const char* const last = text.c_str() + text.size();
  double value = 0;
  if (const auto read = std::from_chars(text.c_str(), last, value);
      read.ec == std::errc() && read.ptr == last)
    return value;
  // It takes no plus sign and tells no value for digits beyond the range.
  char* end = nullptr;
  value = strtod_l(text.c_str(), &end, posixLocale());
  if (end != last) return std::nullopt;
  return value;
}

std::string decimalText(double value, int maximumFractionDigits) {
  if (isWholeBelow(exactIntegers, value)) return wholeText(value);
  if (std::isnan(value)) return "NaN";
  std::string text(std::signbit(value) ? "-" : "");
  if (std::isinf(value)) return text + "∞";
  ShortestDigits number;
  if (value != 0) {
    number = shortestDigits(std::abs(value));
    roundHalfToEven(number, maximumFractionDigits);
  }
  const std::string& digits = number.digits;
  if (digits.empty()) return text + "0";
  if (number.pointAt <= 0) {
    text += "0.";
    text.append(static_cast<std::size_t>(-number.pointAt), '0');
    return text + digits;
  }
  const auto pointAt = static_cast<std::size_t>(number.pointAt);
  if (digits.size() <= pointAt) {
    text += digits;
    text.append(pointAt - digits.size(), '0');
    return text;
  }
  text += std::string_view(digits).substr(0, pointAt);
  text += '.';
  text += std::string_view(digits).substr(pointAt);
  return text;
}

}  // namespace tavi
