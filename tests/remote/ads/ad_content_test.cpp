#include "remote/ads/ad_content.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tavi {
namespace {

const TaviAdData ad{.imageName = "ad1", .linkingString = "https://store.example.org", .discountNumber = "30"};

TEST(AdContentTest, ThePictureIsInTheUsersLanguageOrInEnglish) {
  const std::pair<std::optional<QString>, const char*> cases[] = {
      {"de", "ad1_de"}, {"hi", "ad1_hi"}, {"sv", "ad1_en"}, {"", "ad1_en"}, {std::nullopt, "ad1_en"}};
  for (const auto& [language, name] : cases)
    EXPECT_EQ(adPictureName(ad, {.identifier = {}, .languageCode = language}).toStdString(), name);
}

TEST(AdContentTest, TheDiscountStandsForEveryMark) {
  EXPECT_EQ(adDiscountTitle(QStringLiteral("Save § now, §!"), ad), "Save 30% now, 30%!");
  EXPECT_EQ(adDiscountTitle("Save now", ad), "Save now");
}

TEST(AdContentTest, EventsCarryWhoAndWhichAndHowOften) {
  const QTemporaryDir folder;
  PreferenceStore preferences(folder.filePath("preferences.sqlite"));
  EXPECT_EQ(adParameters(std::nullopt, {}, preferences),
            QVariantMap({{"sendingApp", "unknown"}, {"taviAdId", "unknown"}, {"countTaviAdsPresented", 0}}));
  preferences.setValue("countTaviAdsPresented", 7);
  EXPECT_EQ(
      adParameters(ad, {.identifier = "org.example.own", .languageCode = {}}, preferences),
      QVariantMap({{"sendingApp", "org.example.own"}, {"taviAdId", "ad1"}, {"countTaviAdsPresented", 7}}));
}

}  // namespace
}  // namespace tavi
