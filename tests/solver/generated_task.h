#pragma once

#include <random>
#include <string>
#include <string_view>

#include "solver/rehearsal.h"

namespace tavi {

/// Makes tasks at random, most of them close to what a keypad can type.
class TaskGenerator {
 public:
  explicit TaskGenerator(unsigned seed) : random_(seed) {}

  Task next() { return {modeOf(static_cast<std::int64_t>(below(2))), field(), field()}; }

 private:
  std::size_t below(std::size_t count) { return random_() % count; }

  template <typename Texts>
  std::string_view oneOf(const Texts& texts) {
    return texts[below(std::size(texts))];
  }

  std::string number() {
    constexpr std::string_view numbers[] = {"0",    "1",      "2",     "3",       "4",   "8",
                                            "9",    "16",     "27",    "0.5",     "1.5", "0.25",
                                            "1.01", "0.0001", "12.75", "100000.5"};
    if (below(3) > 0) return std::string(oneOf(numbers));
    std::string digits;
    for (std::size_t length = 1 + below(below(8) == 0 ? 25 : 4); length > 0; --length) {
      digits += static_cast<char>('0' + below(10));
    }
    if (below(3) == 0) digits.insert(below(digits.size() + 1), ".");
    return digits;
  }

  std::string term() {
    constexpr std::string_view symbols[] = {"π", "x", "y", "z", "e"};
    std::string text(below(4) == 0 ? "-" : "");
    if (below(8) > 0) text += number();
    if (below(6) == 0) text += oneOf(symbols);
    return text;
  }

  std::string field() {
    if (below(60) == 0) return "";
    std::string text = term();
    if (below(3) == 0) text += "/" + term();
    if (below(50) == 0) text.insert(0, "(");
    return text;
  }

  std::mt19937 random_;
};

}  // namespace tavi
