#include "output/catalogues.h"
#include "shell/launch/launch_fixture.h"

namespace tavi {
namespace {

TEST_F(LaunchTest, OpensTheInputPageWithTheSampleTaskInTheHistory) {
  launch();
  ASSERT_TRUE(delegate->window());
  EXPECT_TRUE(delegate->window()->isVisible());
  EXPECT_EQ(delegate->pageTabBarController()->selectedIndex(), 0);
  EXPECT_FALSE(delegate->solutionViewController()->tabItem()->isEnabled());
  EXPECT_EQ(calcManager.calculations().size(), 1);
  EXPECT_EQ(delegate->appToolbarController()->toolbar()->rightViews().size(), 1);
  EXPECT_FALSE(TaviFormulaUnit::shared().units.empty()) << "the engine finds the catalogues";
}

TEST_F(LaunchTest, ShowsNothingOverThePagesWhateverTheFirstRunFlagsSay) {
  for (const bool isDone : {false, true}) {
    preferences.setValue("isOnboardingFinished", isDone);
    preferences.setValue("isDsgvoAccepted", isDone);
    launch();
    EXPECT_EQ(delegate->drawer()->presentedController(), nullptr);
    delegate.reset();
  }
}

TEST_F(LaunchTest, BuildsEachControllerOnce) {
  launch();
  EXPECT_EQ(delegate->calculateViewController(), delegate->calculateViewController());
  EXPECT_EQ(delegate->pageTabBarController()->viewControllers()[0], delegate->calculateViewController());
  EXPECT_EQ(delegate->drawer()->rootController(), delegate->appToolbarController().get());
}

TEST_F(LaunchTest, TheMenusCalculateRowHandsWhatWasTypedToAFreshPage) {
  launch();
  const std::weak_ptr<ViewController> before = delegate->calculateViewController();
  for (DTTextField* field : openCalculatePage().allFields) field->setText(field->accessibilityIdentifier);
  delegate->drawer()->setLeftViewOpened(true);
  const auto menu = delegate->leftViewController();
  menu->didSelectRow(LeftViewController::mainSection, 0);
  EXPECT_FALSE(delegate->drawer()->isLeftViewOpened());
  EXPECT_EQ(delegate->leftViewController(), menu) << "the menu survives";
  EXPECT_NE(&openCalculatePage(), before.lock().get());
  for (const DTTextField* field : openCalculatePage().allFields)
    EXPECT_EQ(field->text(), field->accessibilityIdentifier);
}

}  // namespace
}  // namespace tavi
