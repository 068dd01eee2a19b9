#include "remote/videos/video_link.h"

#include <QList>
#include <algorithm>

namespace tavi {

namespace {

constexpr qsizetype identifierLength = 11;

/// What stands behind the prefix; absent for a text that does not begin so.
std::optional<QStringView> behind(QStringView text, const QString& prefix) {
  return text.startsWith(prefix) ? std::optional(text.sliced(prefix.size())) : std::nullopt;
}

/// "t=30s" as 30. A number that 64 bits do not hold is none.
std::optional<qint64> startOf(QStringView piece) {
  if (!piece.startsWith(u"t=") || !piece.endsWith(u's')) return std::nullopt;
  const QStringView digits = piece.sliced(2).chopped(1);
  const bool isDecimal = !digits.isEmpty() &&
                         std::ranges::all_of(digits, [](QChar each) { return each >= u'0' && each <= u'9'; });
  bool isInRange = false;
  const qint64 start = isDecimal ? digits.toLongLong(&isInRange) : 0;
  return isInRange ? std::optional(start) : std::nullopt;
}

std::optional<VideoLink> video(QStringView identifier, std::optional<qint64> start) {
  if (identifier.size() != identifierLength) return std::nullopt;
  return VideoLink{identifier.toString(), start};
}

}  // namespace

std::optional<VideoLink> parseVideoLink(QStringView link, const QString& host) {
  if (const auto watched = behind(link, "https://" + host + "/watch?v=")) {
    const QList<QStringView> pieces = watched->split(u'&', Qt::SkipEmptyParts);
    return pieces.isEmpty() ? std::nullopt : video(pieces.first(), startOf(pieces.last()));
  }
  if (const auto shorts = behind(link, "https:" + host + "/shorts/")) return video(*shorts, std::nullopt);
  return std::nullopt;
}

}  // namespace tavi
