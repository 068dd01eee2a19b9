#include <QTest>

#include "output/catalogues.h"
#include "platform/localization.h"
#include "platform/test_support.h"
#include "remote/introduction/onboard_view_controller.h"
#include "shell/frame/view_manager.h"
#include "shell/launch/command_line.h"
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

TEST_F(LaunchTest, ReadsTheRemoteRecordsThenTheStoreThenOpensTheWindow) {
  QStringList order;
  const auto note = [&](const char* step) {
    const bool isStoreReady = !calcManager.calculations().isEmpty();
    const bool isWindowOpen = delegate->window() != nullptr;
    order.append(QString("%1, store %2, window %3").arg(step).arg(isStoreReady).arg(isWindowOpen));
  };
  remoteConfig.whenRead = [&] {
    if (order.isEmpty()) note("records read");
  };
  notifications.observe(NotificationCenter::applicationDidBecomeActive, &engine, [&] { note("active"); });
  launch();
  ASSERT_TRUE(QTest::qWaitFor([&] { return order.size() > 1; })) << "the window comes to the front";
  EXPECT_EQ(order, QStringList({"records read, store 0, window 0", "active, store 1, window 1"}));
}

TEST_F(LaunchTest, AsksForNewRecordsEachTimeItComesToTheFrontIfTheOldOnesAreSixHoursOld) {
  launch();
  remoteConfig.expiries.clear();
  int observers = 0;
  notifications.observe(NotificationCenter::applicationDidBecomeActive, &engine, [&] { ++observers; });
  delegate->didBecomeActive();
  delegate->didBecomeActive();
  EXPECT_EQ(remoteConfig.expiries, std::vector(2, std::chrono::seconds(21600)));
  EXPECT_EQ(observers, 2);
  EXPECT_EQ(remoteConfig.activations, 0);
  remoteConfig.pending(FetchStatus::success, std::nullopt);
  EXPECT_EQ(remoteConfig.activations, 1) << "what was fetched is used";
}

TEST_F(LaunchTest, ShowsTheIntroductionAndThePrivacyTextUntilEachIsDone) {
  const struct {
    bool isOnboardingFinished;
    bool isDsgvoAccepted;
    const char* shown;  ///< From below to above.
  } cases[] = {{false, false, "introduction alert"},
               {false, true, "introduction"},
               {true, false, "alert"},
               {true, true, ""}};
  for (const auto& [isFinished, isAccepted, shown] : cases) {
    preferences.setValue("isOnboardingFinished", isFinished);
    preferences.setValue("isDsgvoAccepted", isAccepted);
    launch();
    QCoreApplication::processEvents();
    QStringList over;
    for (const ViewController* each = delegate->drawer()->presentedController(); each;
         each = each->presentedController())
      over.append(qobject_cast<const OnboardViewController*>(each) ? "introduction" : "alert");
    EXPECT_EQ(over.join(' ').toStdString(), shown);
    delegate.reset();
    QCoreApplication::processEvents();
  }
}

// What moves unseen has the window drawn again and again.
TEST_F(LaunchTest, NothingMovesUnseenInTheIntroduction) {
  preferences.setValue("isDsgvoAccepted", true);
  launch();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(delegate->window()));
  ViewController* introduction = delegate->drawer()->presentedController();
  ASSERT_TRUE(introduction);
  const auto* pages = introduction->view()->findChild<QQuickItem*>("onboardPages");
  EXPECT_EQ(pages->property("highlightItem").value<QQuickItem*>()->width(), pages->width());
}

TEST_F(LaunchTest, ThePrivacyTextOverTheIntroductionScrollsByTheWheel) {
  launch();
  QQuickWindow& window = *delegate->window();
  window.resize(412, 120);
  const ViewController* introduction = delegate->drawer()->presentedController();
  ASSERT_TRUE(QTest::qWaitFor([&] { return introduction->presentedController(); }));
  QQuickItem* scroll = introduction->presentedController()->view();
  ASSERT_TRUE(QTest::qWaitFor([&] { return scroll->isVisible(); }));
  while (scroll->objectName() != "sheetScroll") scroll = scroll->parentItem();
  window.grabWindow();
  const QPointF place = scroll->mapToScene({100, 60});
  QWheelEvent turn(place, window.mapToGlobal(place), {}, {0, -120}, Qt::NoButton, {}, Qt::NoScrollPhase,
                   false);
  QCoreApplication::sendEvent(&window, &turn);
  EXPECT_TRUE(QTest::qWaitFor([scroll] { return scroll->property("contentY").toDouble() > 0; }));
}

TEST_F(LaunchTest, AsksForARatingOnTheFifthVisitOfTheInputPage) {
  preferences.setValue("isOnboardingFinished", true);
  preferences.setValue("isDsgvoAccepted", true);
  preferences.setValue("counterForRating", 2);
  launch();
  EXPECT_EQ(preferences.variant("counterForRating"), 1);
  delegate->leftViewController()->didSelectRow(LeftViewController::mainSection, 0);
  QCoreApplication::processEvents();
  EXPECT_TRUE(qobject_cast<RatingViewController*>(delegate->drawer()->presentedController()));
}

TEST_F(LaunchTest, SaysThatNothingCanBeKept) {
  runSql(folder.filePath("preferences.sqlite"),
         "CREATE TRIGGER refusal BEFORE INSERT ON elements BEGIN SELECT RAISE(ABORT, 'full'); END");
  launch();
  EXPECT_TRUE(waitUntil([] { return ViewManager::shared().toastText() == localized("nothingIsKept"); }));
  EXPECT_EQ(calcManager.calculations().size(), 1) << "kept until the end";
}

TEST_F(LaunchTest, PrintsNothingWithoutANetwork) {
  loadTranslations({"en"});
  const ConsoleLines console;
  RemoteConfigService unset(RemoteConfigSettings::fromBundle(ResourceBundle::main()),
                            folder.filePath("unset.sqlite"));
  RemoteConfigManager manager(unset, notifications);
  delegate = std::make_unique<AppDelegate>(
      engine, AppServices{unset, manager, calcManager, preferences, notifications});
  delegate->didFinishLaunching();
  delegate->didBecomeActive();
  int reloads = 0;
  notifications.observe(RemoteConfigManager::didLoadVideoTutorialsData, &engine, [&] { ++reloads; });
  EXPECT_TRUE(waitUntil([&] { return reloads > 0; })) << "asked in vain";
  EXPECT_TRUE(waitUntil([&] { return delegate->drawer()->presentedController() != nullptr; }));
  delegate->window()->grabWindow();
  EXPECT_EQ(console.lines(), QStringList());
}

TEST_F(LaunchTest, BuildsEachControllerOnce) {
  launch();
  EXPECT_EQ(delegate->calculateViewController(), delegate->calculateViewController());
  EXPECT_EQ(delegate->pageTabBarController()->viewControllers()[0], delegate->calculateViewController());
  EXPECT_EQ(delegate->drawer()->rootController(), delegate->appToolbarController().get());
}

TEST_F(LaunchTest, OpensAnAskedTaskOnFreshPagesWhateverIsOpen) {
  preferences.setValue("isOnboardingFinished", true);
  preferences.setValue("isDsgvoAccepted", true);
  launch();
  const auto open = [this](const QStringList& arguments) {
    delegate->openTask(*std::get<std::optional<Calculation>>(readCommandLine(arguments)));
    QCoreApplication::processEvents();
  };
  const auto tabs = [this] {
    auto* toolbarController = qobject_cast<AppToolbarController*>(delegate->drawer()->rootController());
    return qobject_cast<AppPageTabBarController*>(toolbarController->rootController());
  };
  const auto fields = [&] {
    const auto* page = qobject_cast<CalculateViewController*>(tabs()->viewControllers()[0].get());
    return page->aTextField.front()->text() + u' ' + page->xTextField.front()->text();
  };
  delegate->drawer()->setLeftViewOpened(true);
  delegate->leftViewController()->showSettings();
  open({"root", "", "−8/27"});
  EXPECT_EQ(tabs()->selectedIndex(), 1);
  EXPECT_TRUE(tabs()->viewControllers()[1]->tabItem()->isEnabled());
  EXPECT_EQ(fields(), " -8/27");
  EXPECT_FALSE(delegate->drawer()->isLeftViewOpened());
  EXPECT_TRUE(waitUntil([this] { return !delegate->drawer()->presentedController(); }));
  EXPECT_EQ(calcManager.calculations().size(), 2) << "it is in the history";

  delegate->leftViewController()->didSelectRow(LeftViewController::mainSection, 1);
  open({"power"});
  EXPECT_EQ(tabs()->selectedIndex(), 0);
  EXPECT_TRUE(openCalculatePage().modeAView->isVisible());
  EXPECT_EQ(fields(), " -8/27") << "what was typed stays";

  open({"power", "-2", "3/2"});
  delegate->solutionViewController()->tappedShareButton();
  open({"root"});
  EXPECT_TRUE(openCalculatePage().modeBView->isVisible());
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
