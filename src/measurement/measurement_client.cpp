#include "measurement/measurement_client.h"

#include <QCoreApplication>
#include <QDebug>
#include <QEventLoop>
#include <QIODevice>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkRequest>
#include <QRandomGenerator>
#include <QStandardPaths>
#include <algorithm>
#include <utility>

#include "measurement/otlp.h"

namespace tavi {

using std::chrono::milliseconds;

namespace {

constexpr int statusTimeout = 408;
constexpr int statusTooMany = 429;
constexpr qint64 answerLimit = 64LL * 1024;
// A collector may ask for a pause, but not for one without end.
constexpr milliseconds longestAskedPause = std::chrono::hours(24);

qint64 now() {
  return QDateTime::currentMSecsSinceEpoch();
}

// The header "Retry-After" is a number of seconds or a date.
milliseconds askedPause(const QByteArray& header) {
  bool isNumber = false;
  const qint64 seconds = header.trimmed().toLongLong(&isNumber);
  qint64 pause = 0;
  if (isNumber) {
    pause = std::clamp<qint64>(seconds, 0, longestAskedPause / std::chrono::seconds(1)) * 1000;
  } else {
    const QString text =
        QString::fromLatin1(header.trimmed()).replace(QLatin1StringView("GMT"), QLatin1StringView("+0000"));
    const QDateTime date = QDateTime::fromString(text, Qt::RFC2822Date);
    if (date.isValid()) pause = date.toMSecsSinceEpoch() - now();
  }
  return milliseconds(std::clamp<qint64>(pause, 0, longestAskedPause.count()));
}

// OTLP's acknowledgement is 200; what stands in front of a collector may have another that means the same. A
// page of something else is none, but what is packed, though not asked for, cannot be told from one.
bool isAcknowledged(int status, QNetworkReply& reply) {
  if (status < 200 || status >= 300 || !reply.isFinished() || reply.error() != QNetworkReply::NoError)
    return false;
  return status != 200 || reply.hasRawHeader("Content-Encoding") || otlp::isAnswer(reply.readAll());
}

// A body that is read once. Qt sends one that it can read again a second time by itself where a collector
// hangs up, and without a pause.
class BodyReadOnce : public QIODevice {
 public:
  explicit BodyReadOnce(QByteArray body) : rest_(std::move(body)) { open(ReadOnly | Unbuffered); }
  bool isSequential() const override { return true; }
  bool reset() override { return false; }
  qint64 bytesAvailable() const override { return rest_.size(); }

 protected:
  qint64 readData(char* data, qint64 size) override {
    if (rest_.isEmpty()) return -1;
    const qint64 taken = std::min<qint64>(size, rest_.size());
    std::copy_n(rest_.cbegin(), taken, data);
    rest_.remove(0, taken);
    return taken;
  }
  qint64 writeData(const char* /*data*/, qint64 /*size*/) override { return -1; }

 private:
  QByteArray rest_;
};

}  // namespace

MeasurementSettings MeasurementSettings::fromBundle(const ResourceBundle& bundle) {
  const QByteArray text =
      bundle.data(QStringLiteral("ProjectSettings"), QStringLiteral("json")).value_or(QByteArray());
  const QJsonObject json = QJsonDocument::fromJson(text).object();
  MeasurementSettings settings;
  settings.endpoint = QUrl(json[u"measurementEndpoint"].toString(), QUrl::StrictMode);
  settings.allowsLoopbackHttp = json[u"allowsLoopbackHttp"].toBool();
  settings.sendsWorkings = json[u"measurementSendsWorkings"].toBool();
  return settings;
}

bool MeasurementSettings::isUsable() const {
  return endpoint.isValid() && !endpoint.host().isEmpty() &&
         (endpoint.scheme() == u"https" || (allowsLoopbackHttp && isLoopbackHttp(endpoint)));
}

QString MeasurementSettings::terms() const {
  return endpoint.host() + QLatin1StringView(sendsWorkings ? " with workings" : "");
}

QStringList MeasurementSettings::sentParameters(const events::EventKind& kind) const {
  QStringList sent;
  for (const QLatin1StringView parameter : kind.parameters) {
    const bool isTyped =
        std::ranges::find(events::typedParameters, parameter) != events::typedParameters.end();
    if (!parameter.isEmpty() && (sendsWorkings || !isTyped)) sent.append(parameter);
  }
  return sent;
}

std::unique_ptr<MeasurementClient> MeasurementClient::fromBundle(const ResourceBundle& bundle) {
  MeasurementSettings settings = MeasurementSettings::fromBundle(bundle);
  const QString path =
      QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + "/measurement.sqlite";
  if (settings.isUsable()) return std::make_unique<MeasurementClient>(std::move(settings), path);
  if (!settings.endpoint.isEmpty())
    qInfo().noquote() << "Measurement: the address is insecure:" << settings.endpoint.toString();
  EventStore::discard(path);
  return nullptr;
}

MeasurementClient::MeasurementClient(MeasurementSettings settings, QString storePath,
                                     NetworkAccessFactory makeAccess)
    : settings_(std::move(settings)),
      recordBytes_(settings_.batchBytes - otlp::request({}).size()),
      storePath_(std::move(storePath)),
      makeAccess_(std::move(makeAccess)) {
  timer_.setSingleShot(true);
  timer_.setTimerType(Qt::PreciseTimer);  // Any other may be early.
  connect(&timer_, &QTimer::timeout, this, &MeasurementClient::send);
}

MeasurementClient::~MeasurementClient() {
  cancel();
}

void MeasurementClient::setConsent(bool isGiven) {
  if (isGiven) {
    if (!store_) {
      store_.emplace(storePath_, settings_.terms().toUtf8());
      // To agree anew ends no pause.
      if (!rest_.hasExpired()) store_->setSendState(state_);
    }
    return schedule(milliseconds(0));
  }
  cancel();
  timer_.stop();
  store_.reset();
  if (!EventStore::discard(storePath_)) qInfo().noquote() << "Measurement: cannot delete" << storePath_;
}

void MeasurementClient::take(const AnalyticsEvent& event) {
  const events::EventKind* kind = events::kindOf(event.name);
  if (!store_ || kind == nullptr) return;
  AnalyticsEvent kept{event.name, QVariantMap()};
  const QVariantMap given = event.parameters.value_or(QVariantMap());
  for (const QString& parameter : settings_.sentParameters(*kind))
    if (given.contains(parameter)) kept.parameters->insert(parameter, given[parameter]);
  const QDateTime time = QDateTime::currentDateTimeUtc();
  const QByteArray record = otlp::logRecord(kept, time, store_->dailyNumber(time.date()));
  if (record.size() < recordBytes_) store_->add(record);
  // The first one of a use waits for those that follow it.
  schedule(settings_.interval);
}

// Starts the timer for the next batch, unless it runs or one is on its way.
void MeasurementClient::schedule(milliseconds least) {
  if (timer_.isActive() || reply_ != nullptr || store_->count() == 0) return;
  // A time too far ahead comes from a clock that was set back.
  const milliseconds longest = std::max({longestAskedPause, settings_.longestPause, settings_.interval});
  milliseconds wait(store_->sendState().notBefore - now());
  if (wait > longest) wait = settings_.interval;
  timer_.start(std::max({wait, least, milliseconds(rest_.remainingTime())}));
}

void MeasurementClient::send() {
  if (!store_ || reply_ != nullptr) return;
  const EventBatch batch = store_->batch(settings_.batchEvents, recordBytes_);
  if (batch.records.empty()) return;
  // Noted beforehand, as whoever ends meanwhile does not hear of the failure.
  const int failures = std::min(store_->sendState().failures + 1, SendState::failureLimit);
  rest(std::max(settings_.interval, pauseAfter(failures)), failures);
  if (!access_) access_ = makeAccess_();
  const QByteArray body = otlp::gzip(otlp::request(batch.records));
  QNetworkRequest request(settings_.endpoint);
  request.setHeader(QNetworkRequest::ContentTypeHeader, "application/json");
  request.setHeader(QNetworkRequest::ContentLengthHeader, body.size());
  request.setAttribute(QNetworkRequest::DoNotBufferUploadDataAttribute, true);
  request.setRawHeader("Content-Encoding", "gzip");
  request.setRawHeader("Accept-Encoding", "identity");
  request.setRawHeader("Accept-Language", "*");  // Qt would tell the user's.
  request.setRawHeader("User-Agent", "tavi");
  request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
  request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
  request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
  auto* device = new BodyReadOnce(body);
  QNetworkReply* reply = access_->post(request, device);
  device->setParent(reply);
  reply_ = reply;
  reply->setReadBufferSize(answerLimit + 1);
  const auto settle = [this, reply, id = batch.lastId] {
    if (reply == reply_) receive(reply, id);
  };
  connect(reply, &QNetworkReply::readyRead, this, [reply, settle] {
    if (reply->bytesAvailable() > answerLimit) settle();
  });
  connect(reply, &QNetworkReply::finished, this, settle);
  QTimer::singleShot(settings_.timeout, reply, settle);
}

void MeasurementClient::receive(QNetworkReply* reply, qint64 lastId) {
  reply->deleteLater();
  reply_ = nullptr;
  const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
  const bool isRefused = status >= 400 && status < 500 && status != statusTimeout && status != statusTooMany;
  if (isRefused || isAcknowledged(status, *reply)) {
    store_->remove(lastId);
    rest(settings_.interval, 0);
  } else {
    rest(std::max(pauseAfter(state_.failures), askedPause(reply->rawHeader("Retry-After"))), state_.failures);
  }
  schedule(milliseconds(0));
}

// Nothing is sent for so long, in this process or the next.
void MeasurementClient::rest(milliseconds pause, int failures) {
  rest_.setRemainingTime(pause);
  state_ = {.notBefore = now() + pause.count(), .failures = failures};
  store_->setSendState(state_);
}

// The pause doubles from failure to failure; where in its second half it ends is left to chance, so that
// those whom one outage stopped do not come back together.
milliseconds MeasurementClient::pauseAfter(int failures) const {
  const qint64 span = std::min(settings_.shortestPause.count() << failures, settings_.longestPause.count());
  const qint64 least = span / 2;
  return milliseconds(least + static_cast<qint64>(QRandomGenerator::global()->generateDouble() *
                                                  static_cast<double>(span - least)));
}

void MeasurementClient::finish() {
  if (!store_) return;
  if (reply_ == nullptr && store_->sendState().failures == 0) send();
  if (reply_ == nullptr) return;
  QEventLoop loop;
  connect(reply_, &QObject::destroyed, &loop, &QEventLoop::quit);
  QTimer::singleShot(settings_.endTimeout, &loop, &QEventLoop::quit);
  loop.exec(QEventLoop::ExcludeUserInputEvents);
  timer_.stop();
}

void MeasurementClient::cancel() {
  // An aborted one would complain of a failure that the network's thread has told meanwhile.
  delete std::exchange(reply_, nullptr);
}

}  // namespace tavi
