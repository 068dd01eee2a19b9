// Any bytes are a history or told to be none; what is taken can be stored and comes back from a file the
// same.
#include <cstdint>
#include <cstdlib>

#include "shell/history_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto read = tavi::readHistoryFile(
      QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
  if (const auto* calculations = std::get_if<QList<tavi::Calculation>>(&read)) {
    const auto again = tavi::readHistoryFile(tavi::historyFile(*calculations));
    const auto* same = std::get_if<QList<tavi::Calculation>>(&again);
    if (!same || *same != *calculations) std::abort();
  }
  return 0;
}
