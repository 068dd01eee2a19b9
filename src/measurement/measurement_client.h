#pragma once

#include <QDeadlineTimer>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QObject>
#include <QTimer>
#include <QUrl>
#include <chrono>
#include <memory>
#include <optional>

#include "measurement/event_store.h"
#include "platform/analytics.h"
#include "platform/network_access.h"
#include "platform/resource_bundle.h"
#include "remote/analytics_events.h"

namespace tavi {

/// Where events are sent and within which limits.
struct MeasurementSettings {
  QUrl endpoint;  ///< Of a collector's logs, https and usually with the path "/v1/logs"; empty for none.
  bool allowsLoopbackHttp = false;
  bool sendsWorkings = false;  ///< Whether what the user typed and its working may go with an event.
  int batchEvents = 200;
  qsizetype batchBytes = 256L * 1024;
  std::chrono::milliseconds interval = std::chrono::minutes(15);  ///< Between two batches.
  std::chrono::milliseconds shortestPause = std::chrono::minutes(1);
  std::chrono::milliseconds longestPause = std::chrono::hours(6);
  std::chrono::milliseconds timeout = std::chrono::seconds(30);    ///< For a whole exchange.
  std::chrono::milliseconds endTimeout = std::chrono::seconds(1);  ///< For the one at the end of the process.

  /// From "ProjectSettings.json" of the bundle; whatever is missing or misshapen there keeps its default.
  static MeasurementSettings fromBundle(const ResourceBundle& bundle);

  /// Whether there is an address and it may be used.
  bool isUsable() const;

  /// What a user agrees to: who receives the events, and whether with workings. The answer to one is none to
  /// another.
  QString terms() const;

  /// The names of the parameters that go with an event of the kind.
  QStringList sentParameters(const events::EventKind& kind) const;
};

/// Keeps the events of a user who agreed, and sends them in batches. Until then, and from a withdrawal on,
/// nothing is kept or sent and there is no file. What a collector acknowledged or refused is forgotten; what
/// it did not answer is sent again after a pause that grows from failure to failure. Main thread only.
class MeasurementClient : public QObject {
  Q_OBJECT

 public:
  /// Keeps its events in the file at the path, once consent is given.
  MeasurementClient(MeasurementSettings settings, QString storePath,
                    NetworkAccessFactory makeAccess = makeNetworkAccess);
  ~MeasurementClient() override;

  /// The client of the settings in the bundle. None where they name no usable address, and then nothing stays
  /// of what another version kept.
  static std::unique_ptr<MeasurementClient> fromBundle(const ResourceBundle& bundle);

  /// The user's answer. A withdrawal deletes what is kept and ends what is being sent.
  void setConsent(bool isGiven);

  /// Keeps the event with what may go with it, if the user agreed and the vocabulary has it. This is what
  /// `Analytics` hands its events to.
  void take(const AnalyticsEvent& event);

  /// Those that hold for what it sends.
  QString terms() const { return settings_.terms(); }

  /// How many events wait to be sent.
  qint64 waiting() const { return store_ ? store_->count() : 0; }

  /// Sends a last batch at the proper end of the process, unless a failure's pause is on, and waits for the
  /// answer as long as `endTimeout`.
  void finish();

 private:
  void schedule(std::chrono::milliseconds least);
  void send();
  void receive(QNetworkReply* reply, qint64 lastId);
  void rest(std::chrono::milliseconds pause, int failures);
  std::chrono::milliseconds pauseAfter(int failures) const;
  void cancel();

  MeasurementSettings settings_;
  qsizetype recordBytes_;  // of a batch, without what stands around its records
  QString storePath_;
  NetworkAccessFactory makeAccess_;
  std::optional<EventStore> store_;  // there while consent is given
  std::unique_ptr<QNetworkAccessManager> access_;
  QNetworkReply* reply_ = nullptr;  // of the batch on its way
  QTimer timer_;
  SendState state_;      // as it was stored last
  QDeadlineTimer rest_;  // what the state tells by the clock, which the user may set
};

}  // namespace tavi
