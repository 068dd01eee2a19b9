#pragma once

#include <QString>
#include <QUrl>

#include "platform/resource_bundle.h"

namespace tavi {

/// Addresses of this project outside of the application, from "ProjectSettings.json". Whatever is missing or
/// misshapen there is empty, and what needs it is not offered.
struct ProjectSettings {
  QUrl communityLink;  ///< The invitation to the community's chat.
  QString videoHost;   ///< The video service as the links in the remote records name it.
  QUrl videoPlayer;    ///< Where the service's player comes from; https, on loopback also http.

  static ProjectSettings fromBundle(const ResourceBundle& bundle);
  static const ProjectSettings& shared();
};

}  // namespace tavi
