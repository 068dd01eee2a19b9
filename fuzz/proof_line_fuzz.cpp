// Any lines are a working: each gets its mark, and what the reader finds does not depend on what follows.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "exact/proof_reader.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view rest(reinterpret_cast<const char*>(data), size);
  constexpr std::size_t fewLines = 6;
  tavi::SolutionSteps steps;
  while (!rest.empty() && steps.size() < fewLines) {
    const std::size_t end = std::min(rest.find('\n'), rest.size());
    steps.push_back({"", std::string(rest.substr(0, end)), {}});
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  const auto marks = tavi::exact::proofRead(steps, "").lines;
  if (marks.size() != steps.size()) std::abort();
  if (steps.size() > 1) {
    steps.pop_back();
    const auto fewer = tavi::exact::proofRead(steps, "").lines;
    for (std::size_t i = 0; i < fewer.size(); ++i) {
      if (fewer[i].mark != marks[i].mark) std::abort();
    }
  }
  return 0;
}
