#include "platform/preference_codec.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
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
    char separator = '[';
    for (const QVariant& element : list) {
      out_ += std::exchange(separator, ',');
      value(element);
    }
    out_ += list.isEmpty() ? "[]" : "]";
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

// How a value stands to a record: its entries fall back alone, while any other value is right as a whole or
// not at all.
enum class Place { recordOrRecords, record, inside };

std::optional<QVariant> decoded(const QJsonValue& json, Place place);

// The text of a key that came before, since the records of a history all have the same few.
QString shared(const QString& key) {
  constexpr qsizetype most = 64;
  thread_local QSet<QString> known;
  if (known.size() < most) return *known.insert(key);
  const auto found = known.constFind(key);
  return found == known.cend() ? key : *found;
}

std::optional<QVariant> decodedArray(const QJsonArray& array, Place place) {
  QVariantList list;
  list.reserve(array.size());
  for (const QJsonValue element : array) {
    std::optional<QVariant> value = decoded(element, place);
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

std::optional<QString> decodedKey(const QString& key) {
  if (!key.startsWith(escape)) return key;
  return key.size() > 1 && key[1] == escape ? std::optional(key.sliced(1)) : std::nullopt;
}

std::optional<QVariant> decodedObject(const QJsonObject& object, bool isRecord) {
  if (object.size() == 1 && object.begin().key() == dateKey) return decodedDate(object.begin().value());
  QVariantMap map;
  for (auto entry = object.begin(); entry != object.end(); ++entry) {
    const std::optional<QString> key = decodedKey(entry.key());
    std::optional<QVariant> value = decoded(entry.value(), Place::inside);
    if (key && value)
      map.insert(shared(*key), *std::move(value));
    else if (!isRecord)
      return std::nullopt;
  }
  return map;
}

std::optional<QVariant> decoded(const QJsonValue& json, Place place) {
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
      return decodedArray(json.toArray(), place == Place::recordOrRecords ? Place::record : Place::inside);
    case QJsonValue::Object:
      return decodedObject(json.toObject(), place != Place::inside);
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

std::optional<QVariant> decodePreference(const QByteArray& text) {
  const QJsonArray wrapper = QJsonDocument::fromJson(text).array();
  return wrapper.size() == 1 ? decoded(wrapper.first(), Place::recordOrRecords) : std::nullopt;
}

}  // namespace tavi
