#include "measurement/otlp.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <cmath>

#include <zlib.h>

#include "number/fatal_stop.h"

namespace tavi::otlp {
namespace {

constexpr int severityInfo = 9;

QJsonObject anyValue(const QVariant& value);

QJsonArray keyValues(const QVariantMap& values) {
  QJsonArray list;
  for (auto entry = values.begin(); entry != values.end(); ++entry) {
    list.append(QJsonObject{{"key", entry.key()}, {"value", anyValue(entry.value())}});
  }
  return list;
}

// Whole numbers are texts there, since JSON's numbers hold no 64 bits.
QJsonObject anyValue(const QVariant& value) {
  switch (value.typeId()) {
    case QMetaType::Bool:
      return {{"boolValue", value.toBool()}};
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
      return {{"intValue", QString::number(value.toLongLong())}};
    case QMetaType::Double: {
      const double number = value.toDouble();
      if (std::isfinite(number)) return {{"doubleValue", number}};
      return {{"doubleValue", std::isnan(number) ? "NaN" : number > 0 ? "Infinity" : "-Infinity"}};
    }
    case QMetaType::QVariantList:
    case QMetaType::QStringList: {
      QJsonArray values;
      for (const QVariant& element : value.toList()) values.append(anyValue(element));
      return {{"arrayValue", QJsonObject{{"values", values}}}};
    }
    case QMetaType::QVariantMap:
      return {{"kvlistValue", QJsonObject{{"values", keyValues(value.toMap())}}}};
    default:
      return {{"stringValue", value.toString()}};
  }
}

QByteArray compact(const QJsonObject& object) {
  return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

}  // namespace

QByteArray logRecord(const AnalyticsEvent& event, const QDateTime& time, const QByteArray& dailyNumber) {
  QVariantMap attributes = event.parameters.value_or(QVariantMap());
  attributes.insert("tavi.day", QString::fromLatin1(dailyNumber));
  const QString nanoseconds = QString::number(time.toMSecsSinceEpoch()) + "000000";
  // Collectors from before the field "eventName" find the name in the body.
  return compact({{"timeUnixNano", nanoseconds},
                  {"observedTimeUnixNano", nanoseconds},
                  {"severityNumber", severityInfo},
                  {"eventName", event.name},
                  {"body", QJsonObject{{"stringValue", event.name}}},
                  {"attributes", keyValues(attributes)}});
}

QByteArray request(const std::vector<QByteArray>& records) {
  const QJsonObject resource{
      {"attributes",
       keyValues({{"service.name", "tavi"}, {"service.version", QCoreApplication::applicationVersion()}})}};
  QByteArray text = R"({"resourceLogs":[{"resource":)" + compact(resource) +
                    R"(,"scopeLogs":[{"scope":{"name":"tavi"},"logRecords":[)";
  for (const QByteArray& record : records) text += record + ',';
  if (!records.empty()) text.chop(1);
  return text + "]}]}]}";
}

bool isAnswer(const QByteArray& body) {
  return body.trimmed().isEmpty() || QJsonDocument::fromJson(body).isObject();
}

QByteArray gzip(const QByteArray& bytes) {
  constexpr int gzipWindow = MAX_WBITS + 16;
  constexpr int usualMemory = 8;
  z_stream stream{};
  if (deflateInit2(&stream, Z_DEFAULT_COMPRESSION, Z_DEFLATED, gzipWindow, usualMemory, Z_DEFAULT_STRATEGY) !=
      Z_OK) {
    fatalStop("no memory to compress in");
  }
  QByteArray packed(static_cast<qsizetype>(deflateBound(&stream, static_cast<uLong>(bytes.size()))), '\0');
  QByteArray input = bytes;
  stream.next_in = reinterpret_cast<Bytef*>(input.data());
  stream.avail_in = static_cast<uInt>(input.size());
  stream.next_out = reinterpret_cast<Bytef*>(packed.data());
  stream.avail_out = static_cast<uInt>(packed.size());
  deflate(&stream, Z_FINISH);
  packed.resize(static_cast<qsizetype>(stream.total_out));
  deflateEnd(&stream);
  return packed;
}

}  // namespace tavi::otlp
