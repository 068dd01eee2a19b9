#pragma once

#include <QTemporaryDir>
#include <memory>

#include <gtest/gtest.h>

#include "platform/analytics.h"
#include "shell/frame/alert_controller.h"
#include "shell/frame/navigation_drawer_controller.h"
#include "shell/frame/recording_controller.h"
#include "shell/frame/toolbar_controller.h"
#include "shell/history/history_table_view_controller.h"

namespace tavi {

inline Calculation task(const QString& latex, int mode = 0) {
  return {{{"aTextField", "3"}, {"xTextField", latex}},
          latex,
          {},
          {{"inputCalculationSelection", mode}, {"appKey", "QRX"}}};
}

/// A history of A, B, C under a toolbar and a drawer, over a store of its own.
class HistoryScreenTest : public testing::Test {
 protected:
  HistoryScreenTest() {
    for (const char* latex : {"C", "B", "A"}) store.addCalculation(task(latex));
    history = std::make_shared<HistoryTableViewController>(
        store, [this] { return std::make_shared<RecordingController>("fresh", events); });
    toolbar = std::make_shared<AppToolbarController>(history);
    drawer = std::make_shared<AppNavigationDrawerController>(
        toolbar, std::make_shared<RecordingController>("menu", events));
    drawer->beginAppearance();
    drawer->endAppearance();
    Analytics::clearRecentEvents();
  }

  static QStringList tasks(const CalcManager& manager) {
    QStringList list;
    for (const Calculation& calculation : manager.calculations()) list.append(calculation.latexString);
    return list;
  }

  /// The order after a restart.
  QStringList stored() {
    PreferenceStore again(folder.filePath("preferences.sqlite"));
    return tasks(CalcManager(again));
  }

  AlertController* alert() { return qobject_cast<AlertController*>(drawer->presentedController()); }

  QTemporaryDir folder;
  PreferenceStore preferences{folder.filePath("preferences.sqlite")};
  CalcManager store{preferences};
  QStringList events;
  std::shared_ptr<HistoryTableViewController> history;
  std::shared_ptr<AppToolbarController> toolbar;
  std::shared_ptr<AppNavigationDrawerController> drawer;
};

}  // namespace tavi
