#pragma once

#include <QByteArray>
#include <QDateTime>
#include <vector>

#include "platform/analytics.h"

/// OpenTelemetry's protocol: logs as JSON, as its collectors take them over HTTP under "/v1/logs".
namespace tavi::otlp {

/// An event as a log record. `dailyNumber` goes with it as "tavi.day".
QByteArray logRecord(const AnalyticsEvent& event, const QDateTime& time, const QByteArray& dailyNumber);

/// The body of a request with the records, which tells the application and its version.
QByteArray request(const std::vector<QByteArray>& records);

/// Whether a collector's answer with status 200 is one: a JSON object, which may tell of rejected records, or
/// nothing at all.
bool isAnswer(const QByteArray& body);

/// In gzip's format.
QByteArray gzip(const QByteArray& bytes);

}  // namespace tavi::otlp
