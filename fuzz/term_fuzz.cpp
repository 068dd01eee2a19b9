// Any two texts, parted by the end of the first line, are a task in both modes: it ends in a working, in an
// error or in a fatal stop that is caught.
#include <cstdint>
#include <string>
#include <string_view>

#include "input/term_reader.h"
#include "solver/rehearsal.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view texts(reinterpret_cast<const char*>(data), size);
  const std::size_t end = std::min(texts.find('\n'), size);
  const std::string first(texts.substr(0, end));
  const std::string second(texts.substr(std::min(end + 1, size)));
  tavi::analyseSubstring(first);
  constexpr std::int64_t fewCopies = 100;
  for (const tavi::Mode mode : {tavi::Mode::power, tavi::Mode::root}) {
    tavi::rehearse({.mode = mode, .first = first, .second = second}, fewCopies);
  }
  return 0;
}
