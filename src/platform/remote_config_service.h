#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QJsonObject>
#include <QObject>
#include <QUrl>
#include <QVariantMap>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "platform/network_access.h"
#include "platform/preference_store.h"
#include "platform/resource_bundle.h"

namespace tavi {

struct HttpAnswer;

enum class FetchStatus { noFetchYet = 0, success = 1, failure = 2, throttled = 3 };

/// Where remote values come from and within which limits.
struct RemoteConfigSettings {
  QUrl endpoint;  ///< https address of the values; empty means that nothing is ever asked.
  bool allowsLoopbackHttp = false;
  std::chrono::milliseconds timeout{30'000};  ///< For the whole fetch, redirects included.
  qint64 bodyLimit = 4LL * 1024 * 1024;       ///< Bytes.
  QJsonObject defaults =
      {};  ///< What a key reads as before anything was fetched, as JSON and not as its text.

  /// From "ProjectSettings.json" of the bundle; whatever is missing or misshapen there keeps its default.
  static RemoteConfigSettings fromBundle(const ResourceBundle& bundle);
};

/// Values that change without a new release: texts by key, fetched from one address as a JSON object of
/// strings.
///
/// Fetched values wait until they are activated. Both sets, and the time of the fetch, are kept on the disk.
/// A fetch that fails in any way leaves them as they were. Main thread only; completions come later, never
/// from within the call, and not any more once the service is gone.
class RemoteConfigService : public QObject {
  Q_OBJECT

 public:
  using FetchCompletion = std::function<void(FetchStatus status, std::optional<QString> error)>;
  using ActivateCompletion = std::function<void(bool isChanged)>;

  static RemoteConfigService& shared();

  /// Keeps its values in the file at the path, which is a preference store.
  RemoteConfigService(RemoteConfigSettings settings, const QString& storePath,
                      NetworkAccessFactory makeAccess = makeNetworkAccess);
  ~RemoteConfigService() override;

  /// No fetch goes out earlier after the last one, whatever expiry is asked for.
  void setMinimumFetchInterval(std::chrono::seconds interval);

  /// The active value of the key, else its default; empty for an unknown key.
  virtual QByteArray dataValue(const QString& key) const;

  /// Fetches, unless the last successful fetch is younger than the expiry, which counts as success too. Calls
  /// during a running fetch share its result.
  virtual void fetch(std::chrono::seconds expiry, FetchCompletion completion);

  /// Makes the values of the last successful fetch the active ones.
  virtual void activate(ActivateCompletion completion);

 private:
  bool isFresh(std::chrono::seconds expiry) const;
  std::optional<QString> receive(const HttpAnswer& answer);
  void finishLater(std::optional<QString> error);
  void finish(const std::optional<QString>& error);
  void save();

  RemoteConfigSettings settings_;
  NetworkAccessFactory makeAccess_;
  PreferenceStore store_;
  std::chrono::seconds minimumFetchInterval_{0};

  QVariantMap fetched_;
  QVariantMap active_;
  QString entityTag_;
  QDateTime lastFetchAt_;

  std::vector<FetchCompletion> waiting_;
  std::unique_ptr<QNetworkAccessManager> access_;
};

}  // namespace tavi
