// Any bytes are records of the kinds that are asked for, or told to be none.
#include <cstdint>
#include <cstdlib>

#include "remote/remote_records.h"

namespace {

template <typename Value>
void check(const tavi::Decoded<Value>& decoded) {
  if (decoded.value.has_value() != decoded.error.isEmpty()) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto json =
      QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  check(tavi::decodeApps(json));
  check(tavi::decodeAds(json));
  check(tavi::decodeUmpReferenceData(json));
  check(tavi::decodeVideoTutorials(json));
  return 0;
}
