#include <QCoreApplication>
#include <QQuickWindow>
#include <QTest>
#include <QTimer>

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

  AlertController* alert() const { return qobject_cast<AlertController*>(drawer->presentedController()); }

  QStringList takeEvents() { return std::exchange(events, {}); }

  QStringList events;
  std::shared_ptr<AppPageTabBarController> tabs;
  std::shared_ptr<AppToolbarController> toolbar;
  std::shared_ptr<AppNavigationDrawerController> drawer;
};

TEST_F(NavigationTest, BringsUpTheOpenPageAndMakesTheOtherOneOnceTheUserBegins) {
  QQuickWindow window;
  tabs = std::make_shared<AppPageTabBarController>(
      std::vector<std::shared_ptr<ViewController>>{page("input"), page("solution")});
  tabs->setView(std::make_unique<QQuickItem>());
  tabs->view()->setParentItem(window.contentItem());
  tabs->beginAppearance();
  tabs->endAppearance();
  EXPECT_EQ(takeEvents(), QStringList({"input loads", "input will appear", "input did appear"}));
  emit window.frameSwapped();
  QCoreApplication::processEvents();
  EXPECT_EQ(takeEvents(), QStringList());

  QTest::keyClick(&window, Qt::Key_2);
  EXPECT_EQ(takeEvents(), QStringList()) << "the frame that answers the key comes first";
  emit window.frameSwapped();
  QCoreApplication::processEvents();
  EXPECT_EQ(takeEvents(), QStringList({"solution loads"}));
}

TEST_F(NavigationTest, SideBySideTheOtherPageComesUpAndGoesAgain) {
  buildTree();
  takeEvents();
  tabs->setSideBySide(true);
  EXPECT_EQ(takeEvents(), QStringList({"solution loads", "solution will appear", "solution did appear"}));
  tabs->select(1);
  EXPECT_EQ(takeEvents(), QStringList()) << "both are open";
  tabs->setSideBySide(false);
  EXPECT_EQ(takeEvents(), QStringList({"input will disappear"}));
  EXPECT_EQ(tabs->selectedIndex(), 1);
  tabs->setSideBySide(true);
  takeEvents();
  drawer->transition(page("other"));
  EXPECT_EQ(takeEvents(), QStringList({"input will disappear", "solution will disappear", "other loads",
                                       "other will appear", "other did appear"}));
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

TEST_F(NavigationTest, WhatIsDismissedGoesAfterItsPopupAlsoWhereSomethingElseGoes) {
  buildTree();
  drawer->present(page("sheet"));
  drawer->transition(page("fresh"));
  QTimer::singleShot(0, [this] { events.append("popup gone"); });
  drawer->dismissPresented();
  QCoreApplication::processEvents();
  const QStringList order = takeEvents();
  EXPECT_TRUE(order.contains("popup gone"));
  EXPECT_GT(order.indexOf("sheet gone"), order.indexOf("popup gone"));
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

TEST_F(NavigationTest, PresentsOneThingAfterTheOther) {
  buildTree();
  ViewController* input = tabs->selectedController();
  int handled = 0;
  input->presentAlert("Title", "Message", {{"No"}, {"Yes", [&handled] { ++handled; }}}, AlertStyle::alert);
  tabs->present(page("sheet"));
  drawer->presentAlert("Later", {}, {}, AlertStyle::alert);
  ASSERT_TRUE(alert());
  EXPECT_EQ(alert()->actionTitles(), QStringList({"No", "Yes"}));
  EXPECT_TRUE(input->isCovered());
  takeEvents();

  alert()->choose(1);
  EXPECT_EQ(handled, 1);
  EXPECT_EQ(takeEvents(), QStringList({"sheet loads", "sheet will appear", "sheet did appear"}));
  QStringList order;
  tabs->dismissPresented([this, &order] { order.append(drawer->presentedController() ? "early" : "gone"); });
  EXPECT_EQ(order, QStringList("gone"));
  EXPECT_EQ(takeEvents(), QStringList({"sheet will disappear"}));
  EXPECT_EQ(alert()->title(), "Later");
  alert()->choose(0);
  EXPECT_FALSE(input->isCovered());
}

TEST_F(NavigationTest, WhatIsPresentedPresentsOverItself) {
  buildTree();
  const auto sheet = page("sheet");
  drawer->present(sheet);
  sheet->present(page("above"));
  sheet->presentAlert("Waits for the one above", {}, {}, AlertStyle::alert);
  ASSERT_TRUE(sheet->presentedController());
  EXPECT_EQ(drawer->presentedController(), sheet.get());
  takeEvents();
  drawer->dismissPresented();
  EXPECT_EQ(takeEvents(), QStringList({"above will disappear", "sheet will disappear"}));
  EXPECT_EQ(alert()->title(), "Waits for the one above") << "nobody's message is lost";
}

TEST_F(NavigationTest, TheNextOneComesWhenNothingIsSeenOfTheLast) {
  buildTree();
  const auto sheet = page("sheet");
  drawer->present(sheet);
  sheet->presentationShown();  // as what draws it does
  drawer->presentAlert("Next", {}, {}, AlertStyle::alert);
  bool isGone = false;
  sheet->dismiss([&isGone] { isGone = true; });
  sheet->dismiss();
  EXPECT_TRUE(sheet->isLeaving());
  EXPECT_FALSE(isGone);
  EXPECT_FALSE(alert());
  sheet->presentationGone();
  EXPECT_TRUE(isGone);
  EXPECT_TRUE(alert());
}

TEST_F(NavigationTest, LetsAnAlertsHandlerPresentTheNextThing) {
  buildTree();
  drawer->presentAlert("First", std::nullopt,
                       {{"Next", [this] { drawer->presentAlert("Second", {}, {}, AlertStyle::alert); }}},
                       AlertStyle::alert);
  alert()->choose(0);
  ASSERT_TRUE(alert());
  EXPECT_EQ(alert()->title(), "Second");
  EXPECT_EQ(alert()->actionTitles(), QStringList({localized("OK")})) << "a button even when none is given";
}

TEST_F(NavigationTest, EscapeGivesTheCancellingAnswerOrTheOnlyOne) {
  struct Case {
    std::vector<AlertAction> actions;
    QString answer;
    int firstFocus;
  };
  QString answer;
  const auto action = [&answer](const char* title, AlertActionStyle style = AlertActionStyle::normal,
                                bool isDestructive = false) {
    return AlertAction{QString(title), [&answer, title] { answer = title; }, style, isDestructive};
  };
  const AlertAction cancel = action("Cancel", AlertActionStyle::cancel);
  const AlertAction clear = action("Clear", AlertActionStyle::normal, true);
  const Case cases[] = {{{action("OK")}, "OK", 0},
                        {{clear, cancel}, "Cancel", 1},
                        {{clear, action("Keep")}, "", 1},
                        {{action("Yes"), action("No")}, "", 0}};
  buildTree();
  for (const Case& each : cases) {
    answer.clear();
    drawer->presentAlert("Title", {}, each.actions, AlertStyle::alert);
    EXPECT_EQ(alert()->firstFocus(), each.firstFocus);
    alert()->cancel();
    EXPECT_EQ(answer, each.answer);
    EXPECT_EQ(alert() != nullptr, each.answer.isEmpty());
    drawer->dismissPresented();
  }
}

TEST_F(NavigationTest, SaysThatThereIsNoNetworkAndThenRunsTheFailureAction) {
  buildTree();
  int failures = 0;
  const OnlineTest nobodyThere(QUrl("http://127.0.0.1:1/"), std::chrono::seconds(5));
  tabs->runWhenOnline([] { FAIL(); }, [&failures] { ++failures; }, nobodyThere);
  ASSERT_TRUE(QTest::qWaitFor([this] { return drawer->presentedController() != nullptr; }));
  EXPECT_EQ(alert()->title(), localized("noInternet"));
  EXPECT_EQ(failures, 0) << "not before it was read";
  alert()->choose(0);
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
