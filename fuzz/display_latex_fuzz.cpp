// Any bytes are a stored line: rewriting it comes to an end.
#include <cstdint>

#include "solution/display_latex.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  tavi::displayLatex({reinterpret_cast<const char*>(data), size});
  return 0;
}
