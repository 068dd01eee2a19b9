#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "appearance/appearance.h"
#include "platform/analytics.h"
#include "platform/test_support.h"
#include "remote/ads/tavi_ads_view_controller.h"

namespace tavi {
namespace {

TEST(AdScreenTest, CountsLogsOpensAndGoes) {
  const struct {
    std::optional<TaviAdData> ad;
    bool isOffer;  ///< The discount button, else the close button.
    const char* opened;
    const char* picture;
    const char* id;
  } cases[] = {
      {TaviAdData{"ad1", "https://store.example.org/", "30"}, true, "https://store.example.org/", "ad1_de",
       "ad1"},
      {TaviAdData{"ad1", "not an address", "30"}, true, "", "ad1_de", "ad1"},
      {TaviAdData{"ad1", "https://store.example.org/", "30"}, false, "", "ad1_de", "ad1"},
      {std::nullopt, true, "", "", "unknown"},
  };
  const QTemporaryDir folder;
  PreferenceStore preferences(folder.filePath("preferences.sqlite"));
  qlonglong count = 0;
  for (const auto& [record, isOffer, opened, picture, id] : cases) {
    QString openedLink;
    Links links;
    links.setHandler([](const QUrl&) { return true; },
                     [&openedLink](const QUrl& url) {
                       openedLink = url.toString();
                       return true;
                     });
    Analytics::clearRecentEvents();
    ViewController root;
    const auto ad = std::make_shared<TaviAdsViewController>(preferences, links, [] {
      return ApplicationContext{.identifier = "org.example.own", .languageCode = "de"};
    });
    ad->currentAd = record;
    root.present(ad);
    EXPECT_EQ(ad->pictureName(), picture);
    EXPECT_EQ(ad->discountTitle().isEmpty(), !record.has_value());
    ++count;
    if (isOffer)
      ad->tappedDiscountButton();
    else
      ad->tappedCloseButton();
    EXPECT_EQ(root.presentedController(), nullptr);
    QCoreApplication::processEvents();
    EXPECT_EQ(openedLink, opened);
    const QVariantMap parameters{
        {"sendingApp", "org.example.own"}, {"taviAdId", id}, {"countTaviAdsPresented", count}};
    ASSERT_EQ(Analytics::recentEvents().size(), 2);
    EXPECT_EQ(Analytics::recentEvents()[0].name, "taviAds_presented");
    EXPECT_EQ(Analytics::recentEvents()[1].name, isOffer ? "taviAds_openedAdProduct" : "taviAds_closedAds");
    for (const AnalyticsEvent& event : Analytics::recentEvents()) EXPECT_EQ(event.parameters, parameters);
  }
}

TEST(AdScreenTest, OnlyTheLightAppearanceHasShadows) {
  const QTemporaryDir folder;
  PreferenceStore preferences(folder.filePath("preferences.sqlite"));
  for (const bool isDark : {false, true}) {
    Appearance::shared().force(isDark);
    TaviAdsViewController ad(preferences);
    ad.view();
    EXPECT_EQ(ad.buttonShadow().opacity, isDark ? 0 : 0.7);
  }
  Appearance::shared().force(std::nullopt);
}

}  // namespace
}  // namespace tavi
