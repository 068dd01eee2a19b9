#include "remote/remote_records.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include "platform/test_support.h"

namespace tavi {
namespace {

const QJsonObject appRecord{{"appIdentifiers", QJsonArray{"a", "b"}},
                            {"appName", QJsonObject{{"en", "Name"}}},
                            {"appURL", "1"},
                            {"appURLPro", "2"},
                            {"ratingURL", "3"},
                            {"ratingURLPro", "4"},
                            {"storeURL", "5"},
                            {"storeURLPro", "6"},
                            {"isMultiApp", true},
                            {"shouldShow", true},
                            {"calculationsUntilInterstitial", 7},
                            {"unknown", QJsonArray{1}}};

Decoded<AllAppMetaData> decodeOne(const QJsonObject& record) {
  return decodeApps(QJsonDocument(QJsonObject{{"apps", QJsonArray{appRecord, record}}}).toJson());
}

TEST(RemoteRecordsTest, AppsTakeEveryFieldByName) {
  const Decoded<AllAppMetaData> decoded = decodeOne(appRecord);
  ASSERT_TRUE(decoded.value) << decoded.error.toStdString();
  EXPECT_EQ(decoded.value->apps[1], (AppMetaData{.appIdentifiers = {"a", "b"},
                                                 .appName = {{"en", "Name"}},
                                                 .appURL = "1",
                                                 .appURLPro = "2",
                                                 .ratingURL = "3",
                                                 .ratingURLPro = "4",
                                                 .storeURL = "5",
                                                 .storeURLPro = "6",
                                                 .isMultiApp = true,
                                                 .shouldShow = true,
                                                 .calculationsUntilInterstitial = 7}));
}

TEST(RemoteRecordsTest, OneBadFieldOfOneAppFailsTheWhole) {
  for (const QString& field : appRecord.keys()) {
    if (field == "unknown") continue;
    QJsonObject without = appRecord;
    without.remove(field);
    EXPECT_EQ(decodeOne(without).value.has_value(), field == "isMultiApp") << field.toStdString();
    QJsonObject null = appRecord;
    null[field] = QJsonValue::Null;
    EXPECT_EQ(decodeOne(null).value.has_value(), field == "isMultiApp") << field.toStdString();
    QJsonObject wrong = appRecord;
    wrong[field] = 1.5;
    EXPECT_FALSE(decodeOne(wrong).value) << field.toStdString();
    EXPECT_TRUE(decodeOne(wrong).error.contains("$.apps[1]." + field)) << field.toStdString();
  }
}

TEST(RemoteRecordsTest, TheOtherTexts) {
  EXPECT_EQ(decodeAds(R"({"k": [{"imageName": "i", "linkingString": "l", "discountNumber": "10"}], "e": []})")
                .value,
            (TaviAds{{"k", {{"i", "l", "10"}}}, {"e", {}}}));
  EXPECT_FALSE(decodeAds(R"({"k": [{"imageName": "i", "linkingString": "l", "discountNumber": 10}]})").value);

  const QByteArray consent =
      R"("purposeConsents": "1", "purposeLegitimateInterests": "2", "vendorConsents": "3", "vendorLegitimateInterests")";
  EXPECT_EQ(decodeUmpReferenceData("{" + consent + R"(: "4"})").value,
            (UmpReferenceData{std::nullopt, "1", "2", "3", "4"}));
  EXPECT_EQ(decodeUmpReferenceData("{" + consent + R"(: "4", "isConsentOrPayActivated": false})").value,
            (UmpReferenceData{false, "1", "2", "3", "4"}));
  EXPECT_FALSE(decodeUmpReferenceData("{" + consent + ": 4}").value);

  EXPECT_EQ(decodeVideoTutorials(R"({"QRX": {"en": ["a", "b"], "de": []}})").value,
            (VideoTutorials{{"QRX", {{"en", {"a", "b"}}, {"de", {}}}}}));
  EXPECT_FALSE(decodeVideoTutorials(R"({"QRX": {"en": "a"}})").value);
}

TEST(RemoteRecordsTest, TextsThatAreNoneOfOursTellWhy) {
  for (const QByteArray& text :
       {QByteArray(), QByteArray("[]"), QByteArray("null"), QByteArray("{\"apps\""), QByteArray("\"text\""),
        QByteArray(100'000, '['), QByteArray("{\"a\xff\": {}}")}) {
    EXPECT_FALSE(decodeApps(text).value);
    EXPECT_FALSE(decodeAds(text).value);
    EXPECT_FALSE(decodeUmpReferenceData(text).value);
    EXPECT_FALSE(decodeVideoTutorials(text).value);
    EXPECT_FALSE(decodeVideoTutorials(text).error.isEmpty());
  }
}

}  // namespace
}  // namespace tavi
