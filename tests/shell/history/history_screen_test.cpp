#include <QTest>

#include <gtest/gtest.h>

#include "number/fatal_stop.h"
#include "platform/localization.h"
#include "shell/frame/view_manager.h"
#include "shell/history/history_fixture.h"
#include "shell/launch/launch_fixture.h"

namespace tavi {
namespace {

using EditingStyle = HistoryTableViewController::EditingStyle;

TEST_F(HistoryScreenTest, TitlesTheToolbarAndPutsItsTwoButtonsThere) {
  EXPECT_EQ(toolbar->toolbar()->title(), localized("History"));
  EXPECT_EQ(toolbar->toolbar()->rightViews(),
            QList({history->clearAllButton.get(), history->editButton.get()}));
  EXPECT_EQ(history->clearAllButton->icon, "clear");
  EXPECT_EQ(history->editButton->icon, "edit");
  EXPECT_EQ(history->numberOfSectionsInTableView(), 1);
  EXPECT_EQ(history->numberOfRowsInSection(0), 3);
}

TEST_F(HistoryScreenTest, ShowsWithoutAToolbarToo) {
  HistoryTableViewController alone(store, {});
  alone.beginAppearance();
  alone.endAppearance();
  EXPECT_EQ(alone.table()->rowCount(), 3);
  alone.didSelectRow(1);
  ASSERT_TRUE(store.currentSelectedCalculation()) << "kept for the next calculate page";
  EXPECT_EQ(store.currentSelectedCalculation()->latexString, "B");
}

TEST_F(HistoryScreenTest, ExchangesTheEndsOfAMoveInTheStoreAndShiftsTheTable) {
  QList<std::tuple<int, int, int>> moves;  // first row, last row, row before which they go
  QObject::connect(history->table(), &QAbstractItemModel::rowsMoved,
                   [&moves](const QModelIndex&, int first, int last, const QModelIndex&, int before) {
                     moves.append({first, last, before});
                   });
  history->moveRow(0, 2);
  EXPECT_EQ(tasks(store), QStringList({"C", "B", "A"}));
  EXPECT_EQ(stored(), QStringList({"C", "B", "A"}));
  history->moveRow(2, 1);
  EXPECT_EQ(stored(), QStringList({"C", "A", "B"}));
  EXPECT_EQ(moves, (QList<std::tuple<int, int, int>>{{0, 0, 3}, {2, 2, 1}}));
  EXPECT_TRUE(Analytics::recentEvents().empty());
}

TEST_F(HistoryScreenTest, DeletesARowForGood) {
  history->commitEditingStyle(EditingStyle::None, 1);
  history->commitEditingStyle(EditingStyle::Insert, 1);
  EXPECT_EQ(history->table()->rowCount(), 3);
  EXPECT_TRUE(Analytics::recentEvents().empty());

  history->commitEditingStyle(EditingStyle::Delete, 1);
  EXPECT_EQ(history->table()->rowCount(), 2);
  EXPECT_EQ(stored(), QStringList({"A", "C"}));
  ASSERT_EQ(Analytics::recentEvents().size(), 1U);
  EXPECT_EQ(Analytics::recentEvents().back().name, "tapped_history_delete_single_calc");
  EXPECT_FALSE(Analytics::recentEvents().back().parameters);
}

TEST_F(HistoryScreenTest, OffersToUndoWhatItDeletes) {
  history->commitEditingStyle(EditingStyle::Delete, 1);
  EXPECT_EQ(ViewManager::shared().toastActionTitle(), localized("Undo"));
  store.addCalculation(task("D"));
  ViewManager::chooseToastAction();
  EXPECT_EQ(stored(), QStringList({"D", "A", "B", "C"}));
  ViewManager::chooseToastAction();
  EXPECT_EQ(store.calculations().size(), 4) << "once";
}

TEST_F(HistoryScreenTest, EndsTheProcessAtARowThatIsNotThere) {
  EXPECT_THROW(history->commitEditingStyle(EditingStyle::Delete, 3), FatalStop);
  EXPECT_THROW(history->moveRow(0, 3), FatalStop);
  EXPECT_THROW(history->didSelectRow(-1), FatalStop);
}

TEST_F(HistoryScreenTest, TurnsEditingOnAndOff) {
  history->editButton->tap();
  EXPECT_TRUE(history->isEditing());
  EXPECT_TRUE(history->editButton->isOn());
  history->editButton->tap();
  EXPECT_FALSE(history->isEditing());
  EXPECT_FALSE(history->editButton->isOn());
}

TEST_F(HistoryScreenTest, AsksBeforeItClears) {
  history->clearAllButton->tap();
  ASSERT_TRUE(alert());
  EXPECT_EQ(alert()->title(), localized("Clear History"));
  EXPECT_EQ(alert()->message(), localized("Are you sure to delete your whole history?"));
  EXPECT_EQ(alert()->actionTitles(), QStringList({localized("Clear"), localized("Cancel")}));

  alert()->choose(1);
  EXPECT_FALSE(alert());
  EXPECT_EQ(stored(), QStringList({"A", "B", "C"}));
  EXPECT_TRUE(Analytics::recentEvents().empty());

  history->clearAllButton->tap();
  alert()->cancel();
  EXPECT_FALSE(alert()) << "what cannot be undone is left by the way back too";
  EXPECT_EQ(store.calculations().size(), 3);
}

TEST_F(HistoryScreenTest, ClearsAndReportsHowMuch) {
  for (const int count : {3, 0}) {
    history->clearAllButton->tap();
    alert()->choose(0);
    ASSERT_FALSE(Analytics::recentEvents().empty());
    EXPECT_EQ(Analytics::recentEvents().back().name, "tapped_history_clear");
    EXPECT_EQ(Analytics::recentEvents().back().parameters, (QVariantMap{{"calc_count", qlonglong{count}}}));
    EXPECT_EQ(history->table()->rowCount(), 0);
    EXPECT_EQ(stored(), QStringList());
    EXPECT_EQ(ViewManager::shared().toastActionTitle(), count > 0 ? localized("Undo") : QString());
    ViewManager::hideToast();
  }
}

TEST_F(HistoryScreenTest, PicksTheRecordReportsItAndOpensFreshPages) {
  store.setCurrentCalculation(task("typed"));
  drawer->setLeftViewOpened(true);
  QObject* opened = drawer->rootController();
  QStringList order;
  Analytics::setSink([&](const AnalyticsEvent& event) {
    order.append(event.name);
    EXPECT_EQ(event.parameters,
              (QVariantMap{{"calc_parameters", QVariantMap{{"aTextField", "3"}, {"xTextField", "B"}}},
                           {"latex_string", "B"}}));
    EXPECT_EQ(store.currentSelectedCalculation(), task("B")) << "picked before it is reported";
    EXPECT_EQ(drawer->rootController(), opened) << "reported before the screen changes";
  });
  history->didSelectRow(1);
  Analytics::setSink({});

  EXPECT_EQ(order, QStringList({"tapped_history_item"}));
  EXPECT_FALSE(store.currentCalculation());
  EXPECT_NE(drawer->rootController(), opened);
  EXPECT_FALSE(drawer->isLeftViewOpened());
  EXPECT_TRUE(events.contains("fresh did appear"));
}

TEST_F(HistoryScreenTest, GoesByTheStoresOrderAfterAMove) {
  int reloaded = -1;
  QObject::connect(history.get(), &HistoryTableViewController::rowReloaded,
                   [&reloaded](int row) { reloaded = row; });
  history->moveRow(0, 2);
  history->didSelectRow(0);
  EXPECT_EQ(reloaded, 0);
  EXPECT_EQ(store.currentSelectedCalculation()->latexString, "C");
}

/// The history within the launched application.
class HistoryVisitTest : public LaunchTest {
 protected:
  void TearDown() override {
    history.reset();
    LaunchTest::TearDown();
  }

  void visit() {
    history = delegate->makeHistoryTableViewController();
    qobject_cast<AppToolbarController*>(delegate->drawer()->rootController())->transition(history);
  }

  std::shared_ptr<HistoryTableViewController> history;
};

TEST_F(HistoryVisitTest, RefillsTheInputPageInTheModeOfTheRecord) {
  launch();
  calcManager.addCalculation(task("27", 1));
  struct Case {
    int row;
    int mode;
    const char* exponentOrIndex;
    const char* baseOrRadicand;
  };
  for (const Case& each : {Case{0, 1, "3", "27"}, Case{1, 0, "-2", "3/2"}}) {
    visit();
    history->didSelectRow(each.row);
    CalculateViewController& page = openCalculatePage();
    EXPECT_EQ(page.segmentedControl->property("selectedSegmentIndex"), each.mode);
    EXPECT_EQ(page.modeBView->isVisible(), each.mode == 1);
    for (const DTTextField* field : page.aTextField) EXPECT_EQ(field->text(), each.exponentOrIndex);
    for (const DTTextField* field : page.xTextField) EXPECT_EQ(field->text(), each.baseOrRadicand);
    EXPECT_FALSE(calcManager.currentSelectedCalculation()) << "taken";
    EXPECT_EQ(calcManager.calculations().size(), 2) << "nothing is calculated by it";
  }
}

TEST_F(HistoryVisitTest, ShowsTheStoresOrderAtTheNextVisit) {
  launch();
  calcManager.clearCalculations();
  for (const char* latex : {"C", "B", "A"}) calcManager.addCalculation(task(latex));
  visit();
  history->moveRow(0, 2);
  visit();
  QCoreApplication::processEvents();
  auto* table = history->view()->findChild<QQuickItem*>("historyTable");
  QStringList shown;
  for (int row = 0; row < 3; ++row) {
    QQuickItem* item = nullptr;
    QMetaObject::invokeMethod(table, "itemAtIndex", Q_RETURN_ARG(QQuickItem*, item), Q_ARG(int, row));
    auto* cell = qobject_cast<HistoryTableViewCell*>(item);
    ASSERT_TRUE(cell);
    shown.append(cell->mathLabel->latex());
  }
  EXPECT_EQ(shown, QStringList({"C", "B", "A"}));
}

TEST_F(HistoryVisitTest, AnUndoOfTheLastVisitIsSeenByThisOne) {
  launch();
  visit();
  history->commitEditingStyle(EditingStyle::Delete, 0);
  visit();
  QCoreApplication::processEvents();
  EXPECT_EQ(history->table()->rowCount(), 0);
  ViewManager::chooseToastAction();
  EXPECT_EQ(history->table()->rowCount(), 1);
  EXPECT_EQ(calcManager.calculations().size(), 1);
}

TEST_F(HistoryVisitTest, OpensFreshPagesFromAnEmptyHistory) {
  launch();
  calcManager.clearCalculations();
  visit();
  history->openCalculatePage();
  EXPECT_NE(&openCalculatePage(), delegate->calculateViewController().get());
}

}  // namespace
}  // namespace tavi
