#pragma once

#include <QString>
#include <QStringView>
#include <optional>

namespace tavi {

/// What a link of the video service says about one video.
struct VideoLink {
  QString identifier;           ///< 11 characters, of any kind.
  std::optional<qint64> start;  ///< Seconds from the beginning.

  bool operator==(const VideoLink&) const = default;
};

/// Reads a link that comes from afar; the host is the service's, such as "www.example.org". Two forms are
/// known, and absent is the answer to all else:
///
///     https://HOST/watch?v=IDENTIFIER&…&t=30s   the start may only be the last piece
///     https:HOST/shorts/IDENTIFIER              without slashes, as the remote records have it
std::optional<VideoLink> parseVideoLink(QStringView link, const QString& host);

}  // namespace tavi
