// A first byte for the mode, then two field texts with a line break between them; all of it once more as a
// text that is pasted.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "input/mode.h"
#include "input/pasted_text.h"
#include "input/typed_task.h"
#include "input/typing_hint.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  tavi::readPasted(input);
  if (input.empty()) return 0;
  const auto mode = tavi::modeOf(input.front() % 2);
  const std::size_t end = std::min(input.find('\n', 1), input.size());
  const auto task =
      tavi::typedTask(mode, std::string(input.substr(1, end - 1)), std::string(input.substr(end)));
  tavi::typedLatex(task);
  tavi::typingHint(mode, task);
  return 0;
}
