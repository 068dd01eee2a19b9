#pragma once

#include <QByteArray>
#include <QJsonValue>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <optional>

namespace tavi {

/// One application of the family.
struct AppMetaData {
  QStringList appIdentifiers;      ///< Identifiers under which it is known.
  QMap<QString, QString> appName;  ///< By language code; "en" is the fallback.
  QString appURL;                  ///< Opens the application if it is installed; tried second.
  QString appURLPro;               ///< The same; tried first.
  QString ratingURL;
  QString ratingURLPro;  ///< The rating page that is opened.
  QString storeURL;
  QString storeURLPro;  ///< The store page that is opened.
  std::optional<bool> isMultiApp;
  bool shouldShow = false;  ///< Whether the side menu may list it.
  qint64 calculationsUntilInterstitial = 0;

  bool operator==(const AppMetaData&) const = default;
};

struct AllAppMetaData {
  QList<AppMetaData> apps;

  bool operator==(const AllAppMetaData&) const = default;
};

/// One house advertisement.
struct TaviAdData {
  QString imageName;
  QString linkingString;
  QString discountNumber;

  bool operator==(const TaviAdData&) const = default;
};

/// Reference data of the consent dialog.
struct UmpReferenceData {
  std::optional<bool> isConsentOrPayActivated;
  QString purposeConsents;
  QString purposeLegitimateInterests;
  QString vendorConsents;
  QString vendorLegitimateInterests;

  bool operator==(const UmpReferenceData&) const = default;
};

using TaviAds = QMap<QString, QList<TaviAdData>>;
/// Topic key, then language code, then links.
using VideoTutorials = QMap<QString, QMap<QString, QStringList>>;

/// What decoding gave: the whole value, or why there is none. A required field that is missing or of another
/// type, at any depth, fails the whole.
template <typename Value>
struct Decoded {
  std::optional<Value> value;
  QString error;
};

Decoded<AllAppMetaData> decodeApps(const QByteArray& json);
Decoded<AllAppMetaData> decodeApps(const QJsonValue& value);
Decoded<TaviAds> decodeAds(const QByteArray& json);
Decoded<UmpReferenceData> decodeUmpReferenceData(const QByteArray& json);
Decoded<VideoTutorials> decodeVideoTutorials(const QByteArray& json);

}  // namespace tavi
