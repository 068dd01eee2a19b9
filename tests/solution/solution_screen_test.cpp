#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include "number/fatal_stop.h"
#include "platform/analytics.h"
#include "platform/localization.h"
#include "shell/frame/page_tab_bar_controller.h"
#include "shell/frame/recording_controller.h"
#include "shell/frame/screenshot.h"
#include "shell/frame/toolbar_controller.h"
#include "solution/rows/step_row.h"
#include "solution/solution_view_controller.h"

namespace tavi {
namespace {

SolutionStep step(const char* title, const char* latex) {
  return {.title = title, .latexString = latex, .messageString = std::nullopt};
}

class SolutionScreenTest : public testing::Test {
 protected:
  SolutionScreenTest() {
    solution = std::make_shared<SolutionViewController>(remoteConfigManager, notifications);
    tabs = std::make_shared<AppPageTabBarController>(std::vector<std::shared_ptr<ViewController>>{
        std::make_shared<RecordingController>("input", events), solution});
    toolbar = std::make_shared<BasicToolbarController>(tabs);
    toolbar->beginAppearance();
    toolbar->endAppearance();
  }

  void show(const std::optional<SolutionSteps>& steps,
            const std::optional<SolutionViewController::RowHeights>& heights = std::nullopt) {
    SolutionViewController::showSolution(tabs.get(), steps, ChartRows{}, QStringLiteral("qrx_info"), heights,
                                         100);
  }

  const SolutionSteps twoSteps{step("Your Input", "2^{3}"), step("", "=8.0")};

  QTemporaryDir folder;
  RemoteConfigService remoteConfig{{}, folder.filePath("remote.sqlite")};
  RemoteConfigManager remoteConfigManager{remoteConfig};
  NotificationCenter notifications;
  QStringList events;
  std::shared_ptr<SolutionViewController> solution;
  std::shared_ptr<AppPageTabBarController> tabs;
  std::shared_ptr<BasicToolbarController> toolbar;
};

TEST_F(SolutionScreenTest, IsEmptyAndClosedBeforeTheFirstSolution) {
  EXPECT_FALSE(solution->tabItem()->isEnabled());
  EXPECT_EQ(solution->tabItem()->title(), localized("Result"));
  EXPECT_EQ(solution->table()->rowCount(), 0);
  EXPECT_TRUE(solution->isShareButtonHidden());
  EXPECT_TRUE(solution->isManualButtonHidden());
}

TEST_F(SolutionScreenTest, ShowsASolutionAndOpensItsTab) {
  show(twoSteps);
  EXPECT_EQ(tabs->selectedIndex(), 1);
  EXPECT_TRUE(solution->tabItem()->isEnabled());
  EXPECT_EQ(solution->table()->rowCount(), 2);
  EXPECT_FALSE(solution->isShareButtonHidden());
  EXPECT_FALSE(solution->isManualButtonHidden());
  EXPECT_TRUE(solution->hasFooter());
  EXPECT_EQ(toolbar->toolbar()->title(), localized("Calculate Title"));
}

TEST_F(SolutionScreenTest, IgnoresACallWithoutTabsOrStepsAndStopsWithoutItsPage) {
  show(std::nullopt);
  SolutionViewController::showSolution(nullptr, twoSteps, ChartRows{}, {}, {}, 100);
  EXPECT_EQ(tabs->selectedIndex(), 0);

  AppPageTabBarController onePage({std::make_shared<RecordingController>("only", events)});
  EXPECT_THROW(SolutionViewController::showSolution(&onePage, twoSteps, ChartRows{}, {}, {}, 100), FatalStop);
  AppPageTabBarController noSolutionPage({std::make_shared<RecordingController>("first", events),
                                          std::make_shared<RecordingController>("second", events)});
  SolutionViewController::showSolution(&noSolutionPage, twoSteps, ChartRows{}, {}, {}, 100);
  EXPECT_EQ(noSolutionPage.selectedIndex(), 0);
}

TEST_F(SolutionScreenTest, StopsAtASolutionWithoutAListOfCharts) {
  EXPECT_THROW(SolutionViewController::showSolution(tabs.get(), twoSteps, std::nullopt, {}, {}, 100),
               FatalStop);
}

TEST_F(SolutionScreenTest, MakesAllRowsAnewWithEachSolution) {
  show(twoSteps);
  tabs->select(0);
  int resets = 0;
  QObject::connect(solution->table(), &QAbstractItemModel::modelReset, [&resets] { ++resets; });
  show(SolutionSteps{step("a", "1"), step("b", "2")});
  EXPECT_GE(resets, 1) << "as many rows as before, but other ones";
}

TEST_F(SolutionScreenTest, ForgetsTheSolutionWhenToldTo) {
  const auto forget = {0, 1};
  for (const int way : forget) {
    show(twoSteps);
    if (way == 0)
      solution->handleClearAllButton();
    else
      notifications.post(SolutionViewController::clearCurrentCalculation);
    EXPECT_TRUE(solution->solutionSteps().empty());
    EXPECT_EQ(solution->table()->rowCount(), 0);
    EXPECT_FALSE(solution->tabItem()->isEnabled());
    EXPECT_FALSE(solution->hasFooter());
    tabs->select(0);
    tabs->select(1);
    EXPECT_TRUE(solution->isShareButtonHidden());
    EXPECT_TRUE(solution->isManualButtonHidden());
    tabs->select(0);
  }
}

TEST_F(SolutionScreenTest, ReportsTheWholeSolutionWhenItIsShared) {
  show(twoSteps);
  Analytics::clearRecentEvents();
  solution->tappedShareButton();
  ASSERT_EQ(Analytics::recentEvents().size(), 1U);
  const AnalyticsEvent& event = Analytics::recentEvents().back();
  EXPECT_EQ(event.name, "tavi_tapped_share");
  EXPECT_EQ(event.parameters->value("solutionStepsCount"), QVariant(qlonglong{2}));
  const QVariantList records = event.parameters->value("solutionSteps").toList();
  EXPECT_EQ(records.at(1).toMap(), (QVariantMap{{"title", ""}, {"latexString", "=8.0"}}));
  EXPECT_TRUE(QTest::qWaitFor([] { return !isTakingScreenshot; }));
}

class StepRowTest : public testing::Test {
 protected:
  SolutionStepTableViewCell cell;
};

TEST_F(StepRowTest, ShowsATitleThatEndsInTheBoldMarkInTheHeavyFont) {
  struct Case {
    const char* title;
    const char* shown;
    bool isHeavy;
  };
  const Case cases[] = {{"Step 1    Convert", "Step 1    Convert", false},
                        {"Answer#bold", "Answer", true},
                        {"a#boldb#bold", "ab", true},
                        {"#bold first", "#bold first", false},
                        {"#bold", "", true},
                        {"", "", false}};
  for (const Case& each : cases) {
    cell.setStepTitle(QString::fromLatin1(each.title));
    EXPECT_EQ(cell.title, QLatin1String(each.shown)) << each.title;
    EXPECT_EQ(cell.titleFont.weight() > QFont::Bold, each.isHeavy) << each.title;
    EXPECT_EQ(cell.titleFont.pixelSize(), 14);
  }
}

TEST_F(StepRowTest, ShowsTheMessageBeforeTheFormulaAndForgetsWhatItShowed) {
  cell.setStepContent(step("", "1.0*2"));
  EXPECT_EQ(cell.latex, "1\\cdot 2");
  cell.setStepContent({.title = "", .latexString = "2", .messageString = "Words"});
  EXPECT_EQ(cell.message, "Words");
  EXPECT_EQ(cell.latex, "");
  cell.setStepContent({.title = "", .latexString = std::nullopt, .messageString = std::nullopt});
  EXPECT_EQ(cell.message, "");
}

}  // namespace
}  // namespace tavi
