#pragma once

#include <QString>
#include <QUrl>

#include "remote/videos/video_link.h"

namespace tavi {

/// The page that embeds the service's player for one video. It takes the title "ready" when the video can be
/// watched, "failed" when the player does not come. The player comes from that address; nothing of the link
/// reaches the page but as a text.
QString videoPage(const VideoLink& video, const QUrl& player);

}  // namespace tavi
