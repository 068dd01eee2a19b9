#include "platform/preference_codec.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "number/fatal_stop.h"

namespace tavi {
namespace {

constexpr QChar escape = u'$';
constexpr QLatin1StringView dateKey{"$date"};

QJsonValue encoded(const QVariant& value) {
  switch (value.typeId()) {
    case QMetaType::QString:
      return value.toString();
    case QMetaType::Bool:
      return value.toBool();
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::LongLong:
      return value.toLongLong();
    case QMetaType::QDateTime:
      if (!value.toDateTime().isValid()) break;
      return QJsonObject{{dateKey, value.toDateTime().toMSecsSinceEpoch()}};
    case QMetaType::QVariantList: {
      QJsonArray array;
      for (const QVariant& element : value.toList()) array.append(encoded(element));
      return array;
    }
    case QMetaType::QVariantMap: {
      QJsonObject object;
      const QVariantMap map = value.toMap();
      for (auto entry = map.begin(); entry != map.end(); ++entry)
        object.insert(entry.key().startsWith(escape) ? escape + entry.key() : entry.key(), encoded(*entry));
      return object;
    }
    default:
      break;
  }
  fatalStop("a preference is a text, integer, boolean, date, array or map");
}

std::optional<QVariant> decoded(const QJsonValue& json);

std::optional<QVariant> decodedArray(const QJsonArray& array) {
  QVariantList list;
  list.reserve(array.size());
  for (const QJsonValue& element : array) {
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
  return QJsonDocument(QJsonArray{encoded(value)}).toJson(QJsonDocument::Compact);
}

std::optional<QVariant> decodePreference(const QByteArray& text) {
  const QJsonArray wrapper = QJsonDocument::fromJson(text).array();
  return wrapper.size() == 1 ? decoded(wrapper.first()) : std::nullopt;
}

}  // namespace tavi
