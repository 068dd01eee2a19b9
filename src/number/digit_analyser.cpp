#include "number/digit_analyser.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>

#include "number/text.h"

namespace tavi {

namespace {

bool isInteger64(std::string_view text) {
  std::int64_t value = 0;
  const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
  return result.ec == std::errc() && result.ptr == text.data() + text.size();
}

std::size_t places(std::string_view text) {
  if (text.find('.') == std::string_view::npos) return 0;
  const std::string_view fractionPart = lastPiece(text, '.');
  return isInteger64(fractionPart) ? fractionPart.size() : 0;
}

}  // namespace

double TaviDigitAnalyser::decimalPlaces(std::string_view zText, std::string_view nText) {
  return static_cast<double>(std::max(places(zText), places(nText)));
}

}  // namespace tavi
