#include "platform/preference_codec.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <utility>

#include "number/fatal_stop.h"

namespace tavi {
namespace {

constexpr QChar escape = u'$';
constexpr QLatin1StringView dateKey{"$date"};

// Written straight into the text: by way of QJsonValue, ten thousand records take three times as long.
class Writer {
 public:
  void value(const QVariant& value) {
    switch (value.typeId()) {
      case QMetaType::QString:
        return text(value.toString());
      case QMetaType::Bool:
        out_ += value.toBool() ? "true" : "false";
        return;
      case QMetaType::Int:
      case QMetaType::UInt:
      case QMetaType::Long:
      case QMetaType::LongLong:
        out_ += QByteArray::number(value.toLongLong());
        return;
      case QMetaType::QDateTime:
        return date(value.toDateTime());
      case QMetaType::QVariantList:
        return list(value.toList());
      case QMetaType::QVariantMap:
        return object(value.toMap());
      default:
        fatalStop("a preference is a text, integer, boolean, date, array or map");
    }
  }

  void array(qsizetype count, const std::function<QVariant(qsizetype)>& element) {
    out_ += '[';
    for (qsizetype i = 0; i < count; ++i) {
      if (i > 0) out_ += ',';
      value(element(i));
    }
    out_ += ']';
  }

  QByteArray take() { return std::move(out_); }

 private:
  void text(QStringView text) {
    out_ += '"';
    for (const QChar character : text) {
      if (character < u' ' || character > u'~') {
        out_ += "\\u" + QByteArray::number(character.unicode(), 16).rightJustified(4, '0');
        continue;
      }
      if (character == u'"' || character == u'\\') out_ += '\\';
      out_ += character.toLatin1();
    }
    out_ += '"';
  }

  void date(const QDateTime& date) {
    if (!date.isValid()) fatalStop("an invalid date is no preference");
    out_ += "{\"$date\":" + QByteArray::number(date.toMSecsSinceEpoch()) + '}';
  }

  void list(const QVariantList& list) {
    array(list.size(), [&](qsizetype index) { return list[index]; });
  }

  void object(const QVariantMap& map) {
    char separator = '{';
    for (auto entry = map.begin(); entry != map.end(); ++entry) {
      out_ += std::exchange(separator, ',');
      text(entry.key().startsWith(escape) ? escape + entry.key() : entry.key());
      out_ += ':';
      value(*entry);
    }
    out_ += map.isEmpty() ? "{}" : "}";
  }

  QByteArray out_;
};

std::optional<QVariant> decoded(const QJsonValue& json);

std::optional<QVariant> decodedArray(const QJsonArray& array) {
  QVariantList list;
  list.reserve(array.size());
  for (const QJsonValue element : array) {
    std::optional<QVariant> value = decoded(element);
    if (!value) return std::nullopt;
    list.append(*std::move(value));
  }
  return list;
}

std::optional<QVariant> decodedDate(const QJsonValue& milliseconds) {
  const QVariant number = milliseconds.toVariant();
  if (number.typeId() != QMetaType::LongLong) return std::nullopt;
  const QDateTime date = QDateTime::fromMSecsSinceEpoch(number.toLongLong(), Qt::UTC);
  return date.isValid() ? std::optional<QVariant>(date) : std::nullopt;
}

std::optional<QVariant> decodedObject(const QJsonObject& object) {
  if (object.size() == 1 && object.begin().key() == dateKey) return decodedDate(object.begin().value());
  QVariantMap map;
  for (auto entry = object.begin(); entry != object.end(); ++entry) {
    QString key = entry.key();
    if (key.startsWith(escape)) {
      key.remove(0, 1);
      if (!key.startsWith(escape)) return std::nullopt;
    }
    std::optional<QVariant> value = decoded(entry.value());
    if (!value) return std::nullopt;
    map.insert(key, *std::move(value));
  }
  return map;
}

std::optional<QVariant> decoded(const QJsonValue& json) {
  switch (json.type()) {
    case QJsonValue::String:
      return json.toString();
    case QJsonValue::Bool:
      return json.toBool();
    case QJsonValue::Double: {
      const QVariant number = json.toVariant();
      return number.typeId() == QMetaType::LongLong ? std::optional(number) : std::nullopt;
    }
    case QJsonValue::Array:
      return decodedArray(json.toArray());
    case QJsonValue::Object:
      return decodedObject(json.toObject());
    case QJsonValue::Null:
    case QJsonValue::Undefined:
      break;
  }
  return std::nullopt;
}

}  // namespace

// A JSON document is an array or an object, so that every value is wrapped into an array of one.
QByteArray encodePreference(const QVariant& value) {
  Writer writer;
  writer.value(value);
  return '[' + writer.take() + ']';
}

QByteArray encodePreferenceArray(qsizetype count, const std::function<QVariant(qsizetype)>& element) {
  Writer writer;
  writer.array(count, element);
  return '[' + writer.take() + ']';
}

std::optional<QVariant> decodePreference(const QByteArray& text) {
  const QJsonArray wrapper = QJsonDocument::fromJson(text).array();
  return wrapper.size() == 1 ? decoded(wrapper.first()) : std::nullopt;
}

}  // namespace tavi
