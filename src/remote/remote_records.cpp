#include "remote/remote_records.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace tavi {
namespace {

// Where and why a text is none of ours; caught in this file only.
struct Mismatch {
  QString reason;
};

// A JSON value and the road to it, for the words of an error.
class Node {
 public:
  Node(QJsonValue value, QString path) : value_(std::move(value)), path_(std::move(path)) {}

  QString text() const { return require(QJsonValue::String, "a text").toString(); }
  bool boolean() const { return require(QJsonValue::Bool, "a boolean").toBool(); }

  qint64 integer() const {
    const QVariant number = require(QJsonValue::Double, "an integer").toVariant();
    if (number.typeId() != QMetaType::LongLong) throw Mismatch{path_ + " is not an integer"};
    return number.toLongLong();
  }

  // Absent and null are the same.
  std::optional<bool> optionalBoolean() const {
    return value_.isUndefined() || value_.isNull() ? std::nullopt : std::optional(boolean());
  }

  Node operator[](QLatin1StringView key) const {
    return {require(QJsonValue::Object, "an object").toObject()[key], path_ + '.' + key};
  }

  template <typename Value>
  QList<Value> list(Value (*decode)(const Node&)) const {
    QList<Value> result;
    for (const QJsonValue element : require(QJsonValue::Array, "an array").toArray())
      result.append(decode({element, path_ + '[' + QString::number(result.size()) + ']'}));
    return result;
  }

  template <typename Value>
  QMap<QString, Value> map(Value (*decode)(const Node&)) const {
    QMap<QString, Value> result;
    const QJsonObject object = require(QJsonValue::Object, "an object").toObject();
    for (auto entry = object.begin(); entry != object.end(); ++entry)
      result.insert(entry.key(), decode({entry.value(), path_ + '.' + entry.key()}));
    return result;
  }

 private:
  const QJsonValue& require(QJsonValue::Type type, const char* name) const {
    if (value_.type() != type) throw Mismatch{path_ + " is not " + name};
    return value_;
  }

  QJsonValue value_;
  QString path_;
};

QString text(const Node& node) {
  return node.text();
}
QStringList texts(const Node& node) {
  return node.list(text);
}
QMap<QString, QStringList> textsByKey(const Node& node) {
  return node.map(texts);
}

AppMetaData appMetaData(const Node& node) {
  using namespace Qt::StringLiterals;
  return {.appIdentifiers = node["appIdentifiers"_L1].list(text),
          .appName = node["appName"_L1].map(text),
          .appURL = node["appURL"_L1].text(),
          .appURLPro = node["appURLPro"_L1].text(),
          .ratingURL = node["ratingURL"_L1].text(),
          .ratingURLPro = node["ratingURLPro"_L1].text(),
          .storeURL = node["storeURL"_L1].text(),
          .storeURLPro = node["storeURLPro"_L1].text(),
          .isMultiApp = node["isMultiApp"_L1].optionalBoolean(),
          .shouldShow = node["shouldShow"_L1].boolean(),
          .calculationsUntilInterstitial = node["calculationsUntilInterstitial"_L1].integer()};
}

AllAppMetaData allAppMetaData(const Node& node) {
  return {node[QLatin1StringView("apps")].list(appMetaData)};
}

TaviAdData adData(const Node& node) {
  using namespace Qt::StringLiterals;
  return {.imageName = node["imageName"_L1].text(),
          .linkingString = node["linkingString"_L1].text(),
          .discountNumber = node["discountNumber"_L1].text()};
}

QList<TaviAdData> adList(const Node& node) {
  return node.list(adData);
}
TaviAds allAds(const Node& node) {
  return node.map(adList);
}

UmpReferenceData referenceData(const Node& node) {
  using namespace Qt::StringLiterals;
  return {.isConsentOrPayActivated = node["isConsentOrPayActivated"_L1].optionalBoolean(),
          .purposeConsents = node["purposeConsents"_L1].text(),
          .purposeLegitimateInterests = node["purposeLegitimateInterests"_L1].text(),
          .vendorConsents = node["vendorConsents"_L1].text(),
          .vendorLegitimateInterests = node["vendorLegitimateInterests"_L1].text()};
}

VideoTutorials videos(const Node& node) {
  return node.map(textsByKey);
}

template <typename Value>
Decoded<Value> decoded(const QJsonValue& json, Value (*decode)(const Node&)) {
  try {
    return {decode({json, QStringLiteral("$")}), {}};
  } catch (const Mismatch& mismatch) {
    return {std::nullopt, mismatch.reason};
  }
}

template <typename Value>
Decoded<Value> decoded(const QByteArray& text, Value (*decode)(const Node&)) {
  QJsonParseError error;
  const QJsonDocument document = QJsonDocument::fromJson(text, &error);
  if (document.isNull()) return {std::nullopt, error.errorString()};
  return decoded(document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object()), decode);
}

}  // namespace

Decoded<AllAppMetaData> decodeApps(const QByteArray& json) {
  return decoded(json, allAppMetaData);
}
Decoded<AllAppMetaData> decodeApps(const QJsonValue& value) {
  return decoded(value, allAppMetaData);
}
Decoded<TaviAds> decodeAds(const QByteArray& json) {
  return decoded(json, allAds);
}
Decoded<UmpReferenceData> decodeUmpReferenceData(const QByteArray& json) {
  return decoded(json, referenceData);
}
Decoded<VideoTutorials> decodeVideoTutorials(const QByteArray& json) {
  return decoded(json, videos);
}

}  // namespace tavi
