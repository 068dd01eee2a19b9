// Any bytes are a stored preference or none; one that is read can be stored, and is then read again.
#include <cstdint>
#include <cstdlib>

#include "platform/preference_codec.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto value = tavi::decodePreference(
      QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
  if (value && tavi::decodePreference(tavi::encodePreference(*value)) != value) std::abort();
  return 0;
}
