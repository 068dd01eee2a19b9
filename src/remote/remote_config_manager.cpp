#include "remote/remote_config_manager.h"

#include <QDebug>
#include <QJsonObject>
#include <algorithm>

#include "number/fatal_stop.h"
#include "platform/property_list.h"
#include "remote/content_language.h"

namespace tavi {
namespace {

using namespace Qt::StringLiterals;

constexpr QLatin1StringView english = "en"_L1;

QString key(VideoTopic topic) {
  switch (topic) {
    case VideoTopic::powersAndRoots:
      return QStringLiteral("QRX");
  }
  fatalStop("a video topic without a key");
}

void print(const QString& line) {
  qInfo().noquote() << line;
}

// Replaces the field and tells so, or prints why not.
template <typename Field, typename Value>
void load(Field& field, const Decoded<Value>& decoded, QLatin1StringView key, QLatin1StringView notification,
          NotificationCenter& notifications) {
  if (!decoded.value) return print("Remote values: " + key + ": " + decoded.error);
  field = *decoded.value;
  notifications.post(notification);
}

}  // namespace

RemoteConfigManager& RemoteConfigManager::shared() {
  static RemoteConfigManager manager(RemoteConfigService::shared());
  return manager;
}

RemoteConfigManager::RemoteConfigManager(RemoteConfigService& remoteConfig, NotificationCenter& notifications,
                                         const ResourceBundle& bundle,
                                         std::function<ApplicationContext()> context)
    : remoteConfig_(remoteConfig),
      notifications_(notifications),
      bundle_(bundle),
      context_(std::move(context)) {
  // The expiry given at each fetch is what keeps fetches rare.
  remoteConfig_.setMinimumFetchInterval(std::chrono::seconds(0));
}

void RemoteConfigManager::reload() {
  loadApps(remoteConfig_);
  loadAds(remoteConfig_);
  loadUmpReferenceData(remoteConfig_);
  loadVideoTutorials(remoteConfig_);
}

void RemoteConfigManager::loadApps(const RemoteConfigService& service) {
  std::optional<AllAppMetaData> all = decodeApps(service.dataValue(u"apps"_s)).value;
  if (!all) all = defaultApps();
  if (!all) return;
  apps_ = all->apps;
  notifications_.post(didLoadMenu);
}

std::optional<AllAppMetaData> RemoteConfigManager::defaultApps() const {
  const std::optional<QString> path = bundle_.path(u"RemoteConfigDefaults"_s, u"plist"_s);
  if (!path) return std::nullopt;
  const PropertyList list =
      readPropertyList(bundle_.data(u"RemoteConfigDefaults"_s, u"plist"_s).value_or(QByteArray()));
  if (!list.value) {
    print("RemoteConfigDefaults.plist: " + list.error);
    return std::nullopt;
  }
  if (list.value->typeId() != QMetaType::QVariantMap) fatalStop("RemoteConfigDefaults.plist is not a map");
  return decodeApps(QJsonValue(QJsonObject::fromVariantMap(list.value->toMap()))).value;
}

void RemoteConfigManager::loadAds(const RemoteConfigService& service) {
  load(ads_, decodeAds(service.dataValue(u"ads"_s)), "ads"_L1, didLoadTaviAds, notifications_);
}

void RemoteConfigManager::loadUmpReferenceData(const RemoteConfigService& service) {
  load(umpReferenceData_, decodeUmpReferenceData(service.dataValue(u"umpReferenceData"_s)),
       "umpReferenceData"_L1, didLoadUmpReferenceData, notifications_);
}

void RemoteConfigManager::loadVideoTutorials(const RemoteConfigService& service) {
  load(videoTutorials_, decodeVideoTutorials(service.dataValue(u"videoTutorials"_s)), "videoTutorials"_L1,
       didLoadVideoTutorialsData, notifications_);
}

void RemoteConfigManager::handleFetchResult(FetchStatus status, const std::optional<QString>& error) {
  if (error) return reload();
  if (status != FetchStatus::success) {
    print(u"Config not fetched"_s);
    print(u"Error: No error available."_s);
    return;
  }
  remoteConfig_.activate([this](bool) { reload(); });
}

QList<AppMetaData> RemoteConfigManager::singleApps() const {
  return listedApps(false);
}

QList<AppMetaData> RemoteConfigManager::multiApps() const {
  return listedApps(true);
}

QList<AppMetaData> RemoteConfigManager::listedApps(bool isMultiApp) const {
  const std::optional<QString> identifier = context_().identifier;
  if (!identifier) return {};
  QList<AppMetaData> listed;
  for (const AppMetaData& app : apps_)
    if (app.shouldShow && app.isMultiApp.value_or(false) == isMultiApp &&
        !app.appIdentifiers.contains(*identifier))
      listed.append(app);
  return listed;
}

const std::optional<AppMetaData>& RemoteConfigManager::currentApp() {
  if (!currentApp_) currentApp_ = peekCurrentApp();
  return currentApp_;
}

std::optional<AppMetaData> RemoteConfigManager::peekCurrentApp() const {
  const std::optional<QString> identifier = context_().identifier;
  if (currentApp_ || !identifier) return currentApp_;
  const auto own = std::ranges::find_if(
      apps_, [&](const AppMetaData& app) { return app.appIdentifiers.contains(*identifier); });
  return own == apps_.end() ? std::nullopt : std::optional(*own);
}

QStringList RemoteConfigManager::videoLinks(VideoTopic topic) const {
  if (!videoTutorials_) return {};
  const QMap<QString, QStringList> byLanguage = videoTutorials_->value(key(topic));
  const QString language = contentLanguage(context_().languageCode);
  QStringList links = byLanguage.value(language);
  if (language != english) links += byLanguage.value(english);
  return links;
}

}  // namespace tavi
