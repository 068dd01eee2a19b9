#include "measurement/measurement_client.h"

#include <QCoreApplication>
#include <QDebug>
#include <QEventLoop>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QNetworkRequest>
#include <QRandomGenerator>
#include <QStandardPaths>
#include <algorithm>

#include "measurement/otlp.h"
#include "remote/analytics_events.h"

namespace tavi {

using std::chrono::milliseconds;

namespace {

constexpr int statusOk = 200;
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
    const QDateTime date = QLocale::c().toDateTime(QString::fromLatin1(header.trimmed()),
                                                   QStringLiteral("ddd, dd MMM yyyy HH:mm:ss 'GMT'"));
    if (date.isValid()) pause = QDateTime(date.date(), date.time(), Qt::UTC).toMSecsSinceEpoch() - now();
  }
  return milliseconds(std::clamp<qint64>(pause, 0, longestAskedPause.count()));
}

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
  return endpoint.isValid() &&
         (endpoint.scheme() == u"https" || (allowsLoopbackHttp && isLoopbackHttp(endpoint)));
}

std::unique_ptr<MeasurementClient> MeasurementClient::fromBundle(const ResourceBundle& bundle) {
  MeasurementSettings settings = MeasurementSettings::fromBundle(bundle);
  if (settings.endpoint.isEmpty()) return nullptr;
  if (!settings.isUsable()) {
    qInfo().noquote() << "Measurement: the address is insecure:" << settings.endpoint.toString();
    return nullptr;
  }
  return std::make_unique<MeasurementClient>(
      std::move(settings),
      QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + "/measurement.sqlite");
}

MeasurementClient::MeasurementClient(MeasurementSettings settings, QString storePath,
                                     NetworkAccessFactory makeAccess)
    : settings_(std::move(settings)), storePath_(std::move(storePath)), makeAccess_(std::move(makeAccess)) {
  timer_.setSingleShot(true);
  timer_.setTimerType(Qt::VeryCoarseTimer);
  connect(&timer_, &QTimer::timeout, this, &MeasurementClient::send);
}

MeasurementClient::~MeasurementClient() {
  cancel();
}

void MeasurementClient::setConsent(bool isGiven) {
  if (isGiven) {
    if (!store_) store_.emplace(storePath_);
    return schedule();
  }
  cancel();
  timer_.stop();
  store_.reset();
  if (!EventStore::discard(storePath_)) qInfo().noquote() << "Measurement: cannot delete" << storePath_;
}

void MeasurementClient::take(const AnalyticsEvent& event) {
  if (!store_) return;
  AnalyticsEvent kept = event;
  if (kept.parameters && !settings_.sendsWorkings) {
    for (const QLatin1StringView typed : events::typedParameters) kept.parameters->remove(typed);
  }
  const QDateTime time = QDateTime::currentDateTimeUtc();
  store_->add(otlp::logRecord(kept, time, store_->dailyNumber(time.date())));
  schedule();
}

// Starts the timer for the next batch, unless it runs or one is on its way.
void MeasurementClient::schedule() {
  if (timer_.isActive() || reply_ != nullptr || store_->count() == 0) return;
  const SendState state = store_->sendState();
  // A time too far ahead comes from a clock that was set back.
  const milliseconds longest = std::max({longestAskedPause, settings_.longestPause, settings_.interval});
  const milliseconds wait(state.notBefore - now());
  timer_.start(wait > longest ? settings_.interval : std::max(wait, milliseconds(0)));
}

void MeasurementClient::send() {
  if (!store_ || reply_ != nullptr) return;
  const EventBatch batch = store_->batch(settings_.batchEvents, settings_.batchBytes);
  if (batch.records.empty()) return;
  if (!access_) access_ = makeAccess_();
  QNetworkRequest request(settings_.endpoint);
  request.setHeader(QNetworkRequest::ContentTypeHeader, "application/json");
  request.setRawHeader("Content-Encoding", "gzip");
  request.setRawHeader("Accept-Encoding", "identity");
  request.setRawHeader("User-Agent", "tavi");
  request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
  request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
  request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
  QNetworkReply* reply = access_->post(request, otlp::gzip(otlp::request(batch.records)));
  reply_ = reply;
  reply->setReadBufferSize(answerLimit + 1);
  connect(reply, &QNetworkReply::readyRead, reply, [reply] {
    if (reply->bytesAvailable() > answerLimit) reply->abort();
  });
  connect(reply, &QNetworkReply::finished, this, [this, reply, id = batch.lastId] { receive(reply, id); });
  QTimer::singleShot(settings_.timeout, reply, &QNetworkReply::abort);
}

void MeasurementClient::receive(QNetworkReply* reply, qint64 lastId) {
  reply->deleteLater();
  reply_ = nullptr;
  const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
  const bool isRefused = status >= 400 && status < 500 && status != statusTimeout && status != statusTooMany;
  const bool isWhole = reply->error() == QNetworkReply::NoError;
  if (isRefused || (status == statusOk && isWhole && otlp::isAnswer(reply->readAll()))) {
    settle(lastId);
  } else {
    postpone(askedPause(reply->rawHeader("Retry-After")));
  }
  schedule();
}

void MeasurementClient::settle(qint64 lastId) {
  store_->remove(lastId);
  store_->setSendState({.notBefore = now() + settings_.interval.count(), .failures = 0});
}

// The pause doubles from failure to failure; where in its second half it ends is left to chance, so that
// those whom one outage stopped do not come back together.
void MeasurementClient::postpone(milliseconds asked) {
  constexpr int doublingLimit = 20;
  const int failures = std::min(store_->sendState().failures + 1, doublingLimit);
  const qint64 span = std::min(settings_.shortestPause.count() << failures, settings_.longestPause.count());
  const qint64 least = span / 2;
  const qint64 own = least + static_cast<qint64>(QRandomGenerator::global()->generateDouble() *
                                                 static_cast<double>(span - least));
  store_->setSendState(
      {.notBefore = now() + std::max(own, static_cast<qint64>(asked.count())), .failures = failures});
}

void MeasurementClient::finish() {
  if (!store_) return;
  if (reply_ == nullptr && store_->sendState().failures == 0) send();
  if (reply_ == nullptr) return;
  QEventLoop loop;
  connect(reply_, &QNetworkReply::finished, &loop, &QEventLoop::quit);
  QTimer::singleShot(settings_.endTimeout, &loop, &QEventLoop::quit);
  loop.exec(QEventLoop::ExcludeUserInputEvents);
  timer_.stop();
}

void MeasurementClient::cancel() {
  if (reply_ == nullptr) return;
  reply_->disconnect(this);
  reply_->abort();
  reply_->deleteLater();
  reply_ = nullptr;
}

}  // namespace tavi
