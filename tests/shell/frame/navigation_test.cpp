#include <QCoreApplication>
#include <QTest>

#include <gtest/gtest.h>

#include "number/fatal_stop.h"
#include "platform/analytics.h"
#include "platform/localization.h"
#include "shell/frame/alert_controller.h"
#include "shell/frame/is_calculating.h"
#include "shell/frame/navigation_drawer_controller.h"
#include "shell/frame/page_tab_bar_controller.h"
#include "shell/frame/recording_controller.h"
#include "shell/frame/toolbar_controller.h"

namespace tavi {
namespace {

class NavigationTest : public testing::Test {
 protected:
  std::shared_ptr<RecordingController> page(const char* name) {
    return std::make_shared<RecordingController>(QLatin1String(name), events);
  }

  /// A drawer around a toolbar around two pages, on the screen.
  void buildTree() {
    tabs = std::make_shared<AppPageTabBarController>(
        std::vector<std::shared_ptr<ViewController>>{page("input"), page("solution")});
    toolbar = std::make_shared<AppToolbarController>(tabs);
    drawer = std::make_shared<AppNavigationDrawerController>(toolbar, page("menu"));
    drawer->beginAppearance();
    drawer->endAppearance();
  }

  QStringList takeEvents() { return std::exchange(events, {}); }

  QStringList events;
  std::shared_ptr<AppPageTabBarController> tabs;
  std::shared_ptr<AppToolbarController> toolbar;
  std::shared_ptr<AppNavigationDrawerController> drawer;
};

TEST_F(NavigationTest, BringsUpTheOpenPageAndMakesTheOtherOneMeanwhile) {
  buildTree();
  EXPECT_EQ(takeEvents(), QStringList({"input loads", "input will appear", "input did appear"}));
  QCoreApplication::processEvents();
  EXPECT_EQ(takeEvents(), QStringList({"solution loads"}));
}

TEST_F(NavigationTest, HidesTheOldPageBeforeAnythingOfTheNewOne) {
  buildTree();
  takeEvents();
  tabs->select(1);
  EXPECT_EQ(takeEvents(), QStringList({"input will disappear", "solution loads", "solution will appear",
                                       "solution did appear"}));
  tabs->select(1);
  EXPECT_EQ(takeEvents(), QStringList());
  EXPECT_THROW(tabs->select(2), FatalStop);
  EXPECT_THROW(tabs->select(-1), FatalStop);
}

TEST_F(NavigationTest, OpensAPageByItsTabOnlyWhenTheTabIsEnabled) {
  buildTree();
  tabs->viewControllers()[1]->tabItem()->setEnabled(false);
  tabs->tapTab(1);
  EXPECT_EQ(tabs->selectedIndex(), 0);
  tabs->viewControllers()[1]->tabItem()->setEnabled(true);
  tabs->tapTab(1);
  EXPECT_EQ(tabs->selectedIndex(), 1);
}

TEST_F(NavigationTest, ReplacesTheRootAndLetsGoOfTheOldOneAfterwards) {
  buildTree();
  takeEvents();
  tabs.reset();
  toolbar.reset();
  bool isCompleted = false;
  drawer->transition(page("fresh"), [&isCompleted] { isCompleted = true; });
  EXPECT_TRUE(isCompleted);
  EXPECT_EQ(takeEvents(),
            QStringList({"input will disappear", "fresh loads", "fresh will appear", "fresh did appear"}));
  QCoreApplication::processEvents();
  const QStringList released = takeEvents();
  EXPECT_TRUE(released.contains("input gone"));
  EXPECT_TRUE(released.contains("solution gone"));
}

TEST_F(NavigationTest, OpensTheMenuByItsButtonUnlessACalculationRuns) {
  buildTree();
  Analytics::clearRecentEvents();
  isCalculating = true;
  toolbar->menuButton()->tap();
  isCalculating = false;
  EXPECT_FALSE(drawer->isLeftViewOpened());
  ASSERT_EQ(Analytics::recentEvents().size(), 1U) << "the tap is reported all the same";
  EXPECT_EQ(Analytics::recentEvents().back().name, "tapped_menu_button");
  EXPECT_FALSE(Analytics::recentEvents().back().parameters.has_value());

  takeEvents();
  toolbar->menuButton()->tap();
  EXPECT_TRUE(drawer->isLeftViewOpened());
  EXPECT_EQ(takeEvents(), QStringList({"menu loads", "menu will appear", "menu did appear"}));
  toolbar->menuButton()->tap();
  EXPECT_FALSE(drawer->isLeftViewOpened());
  EXPECT_EQ(takeEvents(), QStringList({"menu will disappear"}));
}

TEST_F(NavigationTest, FindsTheContainersAroundAPage) {
  buildTree();
  ViewController* input = tabs->selectedController();
  EXPECT_EQ(input->ancestor<AppPageTabBarController>(), tabs.get());
  EXPECT_EQ(input->ancestor<BasicToolbarController>(), toolbar.get());
  EXPECT_EQ(input->ancestor<AppNavigationDrawerController>(), drawer.get());
  EXPECT_EQ(drawer->ancestor<AppToolbarController>(), nullptr);
}

TEST_F(NavigationTest, PresentsOneThingOverTheWindowAtATime) {
  buildTree();
  ViewController* input = tabs->selectedController();
  int handled = 0;
  input->presentAlert("Title", "Message", {{"No"}, {"Yes", [&handled] { ++handled; }}}, AlertStyle::alert);
  auto* alert = qobject_cast<AlertController*>(drawer->presentedController());
  ASSERT_TRUE(alert);
  EXPECT_EQ(alert->actionTitles(), QStringList({"No", "Yes"}));
  EXPECT_FALSE(tabs->present(page("sheet"))) << "something is presented already";

  alert->choose(1);
  EXPECT_EQ(handled, 1);
  EXPECT_EQ(drawer->presentedController(), nullptr);
  EXPECT_TRUE(tabs->present(page("sheet")));
}

TEST_F(NavigationTest, LetsAnAlertsHandlerPresentTheNextThing) {
  buildTree();
  drawer->presentAlert("First", std::nullopt,
                       {{"Next", [this] { drawer->presentAlert("Second", {}, {}, AlertStyle::alert); }}},
                       AlertStyle::alert);
  qobject_cast<AlertController*>(drawer->presentedController())->choose(0);
  auto* second = qobject_cast<AlertController*>(drawer->presentedController());
  ASSERT_TRUE(second);
  EXPECT_EQ(second->title(), "Second");
  EXPECT_EQ(second->actionTitles(), QStringList({localized("OK")})) << "a button even when none is given";
}

TEST_F(NavigationTest, SaysThatThereIsNoNetworkAndThenRunsTheFailureAction) {
  buildTree();
  int failures = 0;
  const OnlineTest nobodyThere(QUrl("http://127.0.0.1:1/"), std::chrono::seconds(5));
  tabs->runWhenOnline([] { FAIL(); }, [&failures] { ++failures; }, nobodyThere);
  ASSERT_TRUE(QTest::qWaitFor([this] { return drawer->presentedController() != nullptr; }));
  auto* alert = qobject_cast<AlertController*>(drawer->presentedController());
  EXPECT_EQ(alert->title(), localized("noInternet"));
  EXPECT_EQ(failures, 0) << "not before it was read";
  alert->choose(0);
  EXPECT_EQ(failures, 1);
}

TEST_F(NavigationTest, ReplacesAToolbarButtonFromItsOwnTap) {
  buildTree();
  auto button = std::make_shared<ToolbarButton>();
  button->action = [this] { toolbar->toolbar()->setRightViews({}); };
  ToolbarButton* tapped = button.get();
  toolbar->toolbar()->setRightViews({std::move(button)});
  tapped->tap();
  EXPECT_TRUE(toolbar->toolbar()->rightViews().isEmpty());
}

}  // namespace
}  // namespace tavi
