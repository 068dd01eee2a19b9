// Any bytes are a property list or told to be none.
#include <cstdint>
#include <cstdlib>

#include "platform/property_list.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto list = tavi::readPropertyList(
      QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
  if (list.value.has_value() != list.error.isEmpty()) std::abort();
  return 0;
}
