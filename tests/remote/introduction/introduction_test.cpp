#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "appearance/appearance.h"
#include "appearance/keypad_palette.h"
#include "platform/localization.h"
#include "platform/resource_bundle.h"
#include "remote/introduction/onboarding_manager.h"

namespace tavi {
namespace {

/// The introduction over an empty root, without a window.
class IntroductionTest : public testing::Test {
 protected:
  void TearDown() override { Appearance::shared().force(std::nullopt); }

  QTemporaryDir folder;
  PreferenceStore preferences{folder.filePath("preferences.sqlite")};
  ViewController root;
};

TEST_F(IntroductionTest, EveryPageHasADrawingAndWordsAndOnlyTheLastOneStarts) {
  loadTranslations({"en"});
  for (const auto pages : {OnboardingManager::mainPages(), OnboardingManager::videoPages()}) {
    const QList<OnboardPage> items = OnboardingManager::onboardingPageItems(pages);
    ASSERT_EQ(items.size(), 5);
    for (const OnboardPage& page : items) {
      EXPECT_TRUE(ResourceBundle::main().picture(page.imageName)) << page.imageName.toStdString();
      EXPECT_TRUE(page.description.contains(u' ')) << page.description.toStdString();
      EXPECT_EQ(page.advanceButtonTitle, localized(&page == &items.last() ? "letsStart" : "next"));
    }
  }
  EXPECT_TRUE(ResourceBundle::main().picture("qrx_info"));
  EXPECT_FALSE(ResourceBundle::main().picture("no such picture"));
}

TEST_F(IntroductionTest, TheApplicationsTitleStandsForEachMark) {
  const auto description = [](const char* key) {
    const PageDescription page[] = {{"", "", "", key}};
    return OnboardingManager::onboardingPageItems(page).first().description.toStdString();
  };
  const std::string title = '"' + localized("Tavi Solver").toStdString() + '"';
  EXPECT_EQ(description("no mark"), "no mark");
  EXPECT_EQ(description("§appname and §appname"), title + " and " + title);
}

TEST_F(IntroductionTest, TheTintIsThatOfTheAppearanceWhenThePagesAreMade) {
  Appearance::shared().force(false);
  const OnboardAppearance light = OnboardingManager::onboardingAppearance();
  EXPECT_EQ(light.tintColor, KeypadPalette::make().darkGold);
  EXPECT_GT(light.advanceButtonShadow.opacity, 0);
  Appearance::shared().force(true);
  const OnboardAppearance dark = OnboardingManager::onboardingAppearance();
  EXPECT_EQ(dark.tintColor, KeypadPalette::make().brightYellow);
  EXPECT_EQ(dark.advanceButtonShadow.opacity, 0);
}

TEST_F(IntroductionTest, OnlyItsEndIsStored) {
  const auto introduction = OnboardingManager::introduction(preferences);
  introduction->setPresentationStyle(ViewController::PresentationStyle::OverFullScreen);
  introduction->presentFrom(root, false);
  for (int page = 0; page < 4; ++page) introduction->advance();
  EXPECT_EQ(introduction->currentPage(), 4);
  introduction->cancel();
  EXPECT_EQ(introduction->currentPage(), 3) << "over the full screen there is no way around it";
  introduction->advance();
  EXPECT_FALSE(preferences.contains("isOnboardingFinished"));
  EXPECT_EQ(root.presentedController(), introduction.get());
  introduction->advance();
  introduction->advance();
  EXPECT_EQ(preferences.variant("isOnboardingFinished"), true);
  EXPECT_EQ(root.presentedController(), nullptr);
}

TEST_F(IntroductionTest, AGuideThatIsLeftEarlyStoresNothing) {
  const auto guide = OnboardingManager::videoGuide(preferences);
  guide->presentFrom(root, true);
  guide->advance();
  guide->cancel();
  EXPECT_EQ(root.presentedController(), nullptr);
  EXPECT_FALSE(preferences.contains("isOnboardingFinished"));
}

}  // namespace
}  // namespace tavi
