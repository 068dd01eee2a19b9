#include "tour/sample_records.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>

#include "platform/preferences.h"

namespace tavi::tour {

namespace {

QJsonObject application(const QString& name, const QString& title, bool isMultiApp) {
  const QString store = QStringLiteral("https://store.example.org/") + name;
  return {{"appIdentifiers", QJsonArray{"org.example.tavi." + name}},
          {"appName", QJsonObject{{"en", title}}},
          {"appURL", "tavi-" + name + "://"},
          {"appURLPro", "tavi-" + name + "-pro://"},
          {"ratingURL", store + "/reviews"},
          {"ratingURLPro", store + "/reviews"},
          {"storeURL", store},
          {"storeURLPro", store},
          {"isMultiApp", isMultiApp},
          {"shouldShow", true},
          {"calculationsUntilInterstitial", 5}};
}

QString text(const QJsonObject& value) {
  return QString::fromUtf8(QJsonDocument(value).toJson(QJsonDocument::Compact));
}

}  // namespace

void storeSampleRecords() {
  const QJsonArray applications{application("powers", "Tavi Powers and Roots", false),
                                application("fractions", "Tavi Fractions", false),
                                application("equations", "Tavi Equations", false),
                                application("triangles", "Tavi Triangles", false),
                                application("complete", "Tavi Maths Complete", true)};
  const QJsonArray links{"https://www.youtube.com/watch?v=readyVideo1&t=30s",
                         "https://www.youtube.com/watch?v=notReadyYet",
                         "https:www.youtube.com/shorts/readyVideo2", "https://videos.example.org/unknown"};
  const QJsonObject ad{{"imageName", "summer"},
                       {"linkingString", "https://store.example.org/complete"},
                       {"discountNumber", "30"}};
  const QVariantMap values{{"apps", text({{"apps", applications}})},
                           {"ads", text({{"summer", QJsonArray{ad}}})},
                           {"videoTutorials", text({{"QRX", QJsonObject{{"en", links}}}})}};
  PreferenceStore store(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) +
                        QStringLiteral("/remote_config.sqlite"));
  store.setValue(preferences::remoteConfig, QVariantMap{{"fetched", values}, {"active", values}});
}

}  // namespace tavi::tour
