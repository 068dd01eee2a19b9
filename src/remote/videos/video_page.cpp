#include "remote/videos/video_page.h"

#include <QJsonDocument>
#include <QJsonObject>

#include "platform/resource_bundle.h"

namespace tavi {

QString videoPage(const VideoLink& video, const QUrl& player) {
  QJsonObject variables{{QStringLiteral("iv_load_policy"), 1}};
  if (video.start) variables[QStringLiteral("start")] = *video.start;
  QByteArray options = QJsonDocument(QJsonObject{{QStringLiteral("videoId"), video.identifier},
                                                 {QStringLiteral("width"), QStringLiteral("100%")},
                                                 {QStringLiteral("height"), QStringLiteral("100%")},
                                                 {QStringLiteral("playerVars"), variables}})
                           .toJson(QJsonDocument::Compact);
  // A text must not end the script that it stands in.
  options.replace('<', "\\u003c");
  const QByteArray page = ResourceBundle::main()
                              .data(QStringLiteral("VideoPlayer"), QStringLiteral("html"))
                              .value_or(QByteArray());
  const QUrl script = player.resolved(QUrl(QStringLiteral("/iframe_api")));
  return QString::fromUtf8(page)
      .replace(QStringLiteral("ADDRESS"), script.toString(QUrl::FullyEncoded).toHtmlEscaped())
      .replace(QStringLiteral("OPTIONS"), QString::fromUtf8(options));
}

}  // namespace tavi
