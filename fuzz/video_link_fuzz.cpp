// Any text is a link: what is read out of it is an identifier of the one length and a start that can be.
#include <QString>
#include <cstdint>
#include <cstdlib>

#include "remote/videos/video_link.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  for (const QString& link :
       {text, "https://www.example.org/watch?v=" + text, "https:www.example.org/shorts/" + text}) {
    const auto video = tavi::parseVideoLink(link, QStringLiteral("www.example.org"));
    if (video && (video->identifier.size() != 11 || !link.contains(video->identifier))) std::abort();
    if (video && video->start.value_or(0) < 0) std::abort();
  }
  return 0;
}
