#include "platform/remote_config_service.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>

#include "platform/application_context.h"
#include "platform/bounded_get.h"
#include "platform/preferences.h"

namespace tavi {
namespace {

constexpr int statusNotModified = 304;
constexpr qsizetype entityTagLimit = 256;

std::optional<QVariantMap> decodeTexts(const QByteArray& body) {
  const QJsonDocument document = QJsonDocument::fromJson(body);
  if (!document.isObject()) return std::nullopt;
  QVariantMap texts;
  const QJsonObject object = document.object();
  for (auto entry = object.begin(); entry != object.end(); ++entry) {
    if (!entry->isString()) return std::nullopt;
    texts.insert(entry.key(), entry->toString());
  }
  return texts;
}

}  // namespace

RemoteConfigSettings RemoteConfigSettings::fromBundle(const ResourceBundle& bundle) {
  const QByteArray text =
      bundle.data(QStringLiteral("ProjectSettings"), QStringLiteral("json")).value_or(QByteArray());
  const QJsonObject settings = QJsonDocument::fromJson(text).object();
  return {.endpoint = QUrl(settings[u"remoteConfigEndpoint"].toString(), QUrl::StrictMode),
          .allowsLoopbackHttp = settings[u"allowsLoopbackHttp"].toBool(),
          .defaults = settings[u"remoteConfigDefaults"].toObject()};
}

RemoteConfigService& RemoteConfigService::shared() {
  static RemoteConfigService service(RemoteConfigSettings::fromBundle(ResourceBundle::main()),
                                     userDataFolder() + "/remote_config.sqlite");
  return service;
}

RemoteConfigService::RemoteConfigService(RemoteConfigSettings settings, const QString& storePath,
                                         NetworkAccessFactory makeAccess)
    : settings_(std::move(settings)), makeAccess_(std::move(makeAccess)), store_(storePath) {
  const QVariantMap state = store_.value(preferences::remoteConfig);
  fetched_ = state.value("fetched").toMap();
  active_ = state.value("active").toMap();
  entityTag_ = state.value("entityTag").toString();
  lastFetchAt_ = state.value("lastFetchAt").toDateTime();
}

RemoteConfigService::~RemoteConfigService() = default;

void RemoteConfigService::setMinimumFetchInterval(std::chrono::seconds interval) {
  minimumFetchInterval_ = interval;
}

QByteArray RemoteConfigService::dataValue(const QString& key) const {
  if (active_.contains(key)) return active_.value(key).toString().toUtf8();
  const QJsonObject standard = settings_.defaults[key].toObject();
  return settings_.defaults.contains(key) ? QJsonDocument(standard).toJson(QJsonDocument::Compact)
                                          : QByteArray();
}

void RemoteConfigService::fetch(std::chrono::seconds expiry, FetchCompletion completion) {
  waiting_.push_back(std::move(completion));
  if (waiting_.size() > 1) return;

  if (settings_.endpoint.isEmpty()) return finishLater(QStringLiteral("no address of remote values is set"));
  const HttpBounds bounds{settings_.timeout, settings_.bodyLimit, settings_.allowsLoopbackHttp};
  if (!bounds.allows(settings_.endpoint))
    return finishLater(QStringLiteral("the address of remote values is insecure"));
  if (isFresh(std::max(expiry, minimumFetchInterval_))) return finishLater(std::nullopt);

  if (!access_) {
    access_ = makeAccess_();
    // An access manager must not outlive the application object, as a shared service does.
    connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this, [this] {
      waiting_.clear();
      access_.reset();
    });
  }
  QNetworkRequest request(settings_.endpoint);
  if (!entityTag_.isEmpty()) request.setRawHeader("If-None-Match", entityTag_.toLatin1());
  boundedGet(*access_, request, bounds, [this](const HttpAnswer& answer) { finish(receive(answer)); });
}

bool RemoteConfigService::isFresh(std::chrono::seconds expiry) const {
  if (!lastFetchAt_.isValid()) return false;
  // A time in the future comes from a clock that was set back, and would block every fetch.
  const std::chrono::milliseconds age{lastFetchAt_.msecsTo(QDateTime::currentDateTimeUtc())};
  return age.count() >= 0 && age < expiry;
}

std::optional<QString> RemoteConfigService::receive(const HttpAnswer& answer) {
  if (answer.error) return answer.error;
  if (answer.status == statusNotModified) {
    if (entityTag_.isEmpty()) return QStringLiteral("not modified, but nothing was known");
  } else {
    std::optional<QVariantMap> texts = decodeTexts(answer.body);
    if (!texts) return QStringLiteral("the answer is no object of texts");
    fetched_ = *std::move(texts);
    entityTag_ =
        answer.entityTag.size() <= entityTagLimit ? QString::fromLatin1(answer.entityTag) : QString();
  }
  lastFetchAt_ = QDateTime::currentDateTimeUtc();
  save();
  return std::nullopt;
}

void RemoteConfigService::finishLater(std::optional<QString> error) {
  QMetaObject::invokeMethod(
      this, [this, error = std::move(error)] { finish(error); }, Qt::QueuedConnection);
}

void RemoteConfigService::finish(const std::optional<QString>& error) {
  // A completion may start the next fetch.
  const std::vector<FetchCompletion> completions = std::exchange(waiting_, {});
  for (const FetchCompletion& completion : completions)
    completion(error ? FetchStatus::failure : FetchStatus::success, error);
}

void RemoteConfigService::activate(ActivateCompletion completion) {
  const bool isChanged = active_ != fetched_;
  active_ = fetched_;
  if (isChanged) save();
  QMetaObject::invokeMethod(
      this, [isChanged, completion = std::move(completion)] { completion(isChanged); }, Qt::QueuedConnection);
}

void RemoteConfigService::save() {
  QVariantMap state{{"fetched", fetched_}, {"active", active_}, {"entityTag", entityTag_}};
  if (lastFetchAt_.isValid()) state.insert("lastFetchAt", lastFetchAt_);
  store_.setValue(preferences::remoteConfig, state);
}

}  // namespace tavi
