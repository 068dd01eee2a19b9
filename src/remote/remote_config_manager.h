#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

#include "platform/application_context.h"
#include "platform/notification_center.h"
#include "platform/remote_config_service.h"
#include "platform/resource_bundle.h"
#include "remote/remote_records.h"

namespace tavi {

/// Subjects that have tutorial videos.
enum class VideoTopic { powersAndRoots };

/// The content that changes without a new release, decoded and at hand. Texts that do not decode leave the
/// old records and print one line; nothing here fails towards the user.
class RemoteConfigManager {
 public:
  /// Posted after the field of that name was replaced.
  static constexpr QLatin1StringView didLoadMenu{"didLoadMenu"};
  static constexpr QLatin1StringView didLoadTaviAds{"didLoadTaviAds"};
  static constexpr QLatin1StringView didLoadUmpReferenceData{"didLoadUmpReferenceData"};
  static constexpr QLatin1StringView didLoadVideoTutorialsData{"didLoadVideoTutorialsData"};

  static RemoteConfigManager& shared();

  /// Starts with no records; `reload` fills them.
  explicit RemoteConfigManager(RemoteConfigService& remoteConfig,
                               NotificationCenter& notifications = NotificationCenter::shared(),
                               const ResourceBundle& bundle = ResourceBundle::main(),
                               std::function<ApplicationContext()> context = ApplicationContext::current);

  /// The four load steps below, in their order.
  void reload();

  /// Fills `apps`; a text that does not decode is replaced by "RemoteConfigDefaults.plist" of the bundle.
  void loadApps(const RemoteConfigService& service);
  void loadAds(const RemoteConfigService& service);
  void loadUmpReferenceData(const RemoteConfigService& service);
  void loadVideoTutorials(const RemoteConfigService& service);

  /// To be called with the answer of a fetch: activates what came and reloads.
  void handleFetchResult(FetchStatus status, const std::optional<QString>& error);

  const QList<AppMetaData>& apps() const { return apps_; }
  const TaviAds& ads() const { return ads_; }
  const std::optional<UmpReferenceData>& umpReferenceData() const { return umpReferenceData_; }
  const std::optional<VideoTutorials>& videoTutorials() const { return videoTutorials_; }

  /// The other applications that may be listed, those for one subject and those for all.
  QList<AppMetaData> singleApps() const;
  QList<AppMetaData> multiApps() const;

  /// This application's own record. Once found it stays, even when `apps` changes.
  const std::optional<AppMetaData>& currentApp();

  /// The same without keeping it: the next list may know more of it.
  std::optional<AppMetaData> peekCurrentApp() const;

  /// Links in the user's language, then the English ones.
  QStringList videoLinks(VideoTopic topic) const;

 private:
  std::optional<AllAppMetaData> defaultApps() const;
  QList<AppMetaData> listedApps(bool isMultiApp) const;

  std::optional<AppMetaData> currentApp_;
  RemoteConfigService& remoteConfig_;
  NotificationCenter& notifications_;
  const ResourceBundle& bundle_;
  std::function<ApplicationContext()> context_;
  QList<AppMetaData> apps_;
  TaviAds ads_;
  std::optional<UmpReferenceData> umpReferenceData_;
  std::optional<VideoTutorials> videoTutorials_;
};

}  // namespace tavi
