#include "platform/project_settings.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace tavi {

ProjectSettings ProjectSettings::fromBundle(const ResourceBundle& bundle) {
  const QByteArray text =
      bundle.data(QStringLiteral("ProjectSettings"), QStringLiteral("json")).value_or(QByteArray());
  const QJsonObject settings = QJsonDocument::fromJson(text).object();
  return {.communityLink = QUrl(settings[u"communityLink"].toString(), QUrl::StrictMode),
          .videoHost = settings[u"videoHost"].toString(),
          .videoPlayer = QUrl(settings[u"videoPlayer"].toString(), QUrl::StrictMode)};
}

const ProjectSettings& ProjectSettings::shared() {
  static const ProjectSettings settings = fromBundle(ResourceBundle::main());
  return settings;
}

}  // namespace tavi
