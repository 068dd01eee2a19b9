#pragma once

#include <QQmlEngine>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <memory>
#include <vector>

#include <gtest/gtest.h>

#include "platform/fake_voice.h"
#include "shell/frame/controller_host.h"
#include "shell/frame/page_tab_bar_controller.h"
#include "shell/frame/toolbar_controller.h"
#include "solution/solution_view_controller.h"

namespace tavi {

inline SolutionStep formulaStep(std::string title, std::string latex) {
  return {.title = std::move(title), .latexString = std::move(latex), .messageString = std::nullopt};
}

/// The solution page as the second of two tabs under a toolbar, in a window.
class SolutionStage : public testing::Test {
 protected:
  static QQuickItem* shownItem(QQuickItem& item, const char* name) {
    if (item.isVisible() && item.objectName() == QLatin1String(name)) return &item;
    for (QQuickItem* child : item.childItems())
      if (QQuickItem* found = shownItem(*child, name)) return found;
    return nullptr;
  }

  SolutionStage() {
    window.resize(412, 744);
    window.show();
    window.requestActivate();
    solution->setPage(engine, "solution/SolutionPage.qml");
    tabs->setPage(engine, "shell/frame/TabsPage.qml");
    root->setPage(engine, "shell/frame/ToolbarPage.qml");
    root->beginAppearance();
    host.setParentItem(window.contentItem());
    host.setSize(window.size());
    host.setController(root.get());
    root->endAppearance();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    solution->reader()->setVoice(std::make_unique<FakeVoice>(Voice::State::Missing));
  }

  void show(const SolutionSteps& steps, const ChartRows& charts = {}) {
    SolutionViewController::showSolution(tabs.get(), steps, charts, QStringLiteral("qrx_info"), std::nullopt,
                                         100);
    window.grabWindow();
  }

  QQuickItem& table() { return *solution->view()->findChild<QQuickItem*>("solutionTable"); }

  /// The rows that exist, from the top.
  std::vector<QQuickItem*> cells() {
    std::vector<QQuickItem*> found;
    for (QQuickItem* item : table().property("contentItem").value<QQuickItem*>()->childItems())
      if (item->isVisible() && item->property("content").isValid()) found.push_back(item);
    std::ranges::sort(found, {}, [](QQuickItem* cell) { return cell->mapToScene({}).y(); });
    return found;
  }

  /// A line of the open menu, or none.
  QQuickItem* menuEntry(const char* name) { return shownItem(*window.contentItem(), name); }

  QTemporaryDir folder;
  RemoteConfigService remoteConfig{{}, folder.filePath("remote.sqlite")};
  RemoteConfigManager remoteConfigManager{remoteConfig};
  NotificationCenter notifications;
  PreferenceStore preferences{folder.filePath("preferences.sqlite")};
  QQmlEngine engine;
  QQuickWindow window;
  std::shared_ptr<SolutionViewController> solution =
      std::make_shared<SolutionViewController>(remoteConfigManager, notifications, preferences);
  std::shared_ptr<AppPageTabBarController> tabs = std::make_shared<AppPageTabBarController>(
      std::vector<std::shared_ptr<ViewController>>{std::make_shared<ViewController>(), solution});
  std::shared_ptr<AppToolbarController> root = std::make_shared<AppToolbarController>(tabs);
  ControllerHost host;
};

}  // namespace tavi
