#pragma once

#include <QQmlEngine>
#include <QQuickWindow>
#include <QTimer>
#include <functional>
#include <memory>
#include <optional>

#include "shell/app_services.h"
#include "shell/calculate_view_controller.h"
#include "shell/frame/navigation_drawer_controller.h"
#include "shell/frame/page_tab_bar_controller.h"
#include "shell/frame/toolbar_controller.h"
#include "shell/history/history_table_view_controller.h"
#include "shell/launch/window_place.h"
#include "shell/menu/left_view_controller.h"
#include "solution/solution_view_controller.h"

namespace tavi {

/// Starts the application and builds its controllers, each when it is first asked for.
///
/// A second one, never launched, is the way back to fresh pages: its `appToolbarController` goes to the
/// drawer's `transition`.
class AppDelegate : public QObject {
  Q_OBJECT

 public:
  /// The engine loads the pages; it and the services must live longer than every controller.
  explicit AppDelegate(QQmlEngine& engine, AppServices services = {});
  ~AppDelegate() override;

  /// The launch: remote records, first-start step, screen tree, window. To be called once.
  void didFinishLaunching();

  /// Opens a picked record on fresh pages, its working where it has texts; whatever lies over the pages goes,
  /// but not what is asked at a first start. After the launch.
  void openTask(const Calculation& task);

  /// Asks for new remote values if the last ones are older than six hours, then tells the others.
  void didBecomeActive();

  QQuickWindow* window() const { return window_.get(); }
  const std::shared_ptr<AppNavigationDrawerController>& drawer() const { return drawer_; }

  const std::shared_ptr<CalculateViewController>& calculateViewController();
  const std::shared_ptr<LeftViewController>& leftViewController();
  const std::shared_ptr<SolutionViewController>& solutionViewController();
  const std::shared_ptr<AppPageTabBarController>& pageTabBarController();
  const std::shared_ptr<AppToolbarController>& appToolbarController();

  /// A history screen for one visit.
  std::shared_ptr<HistoryTableViewController> makeHistoryTableViewController();

 private:
  /// What makes fresh pages under their toolbar.
  std::function<std::shared_ptr<ViewController>()> rootFactory() const;
  void openWindow();
  void presentFirstRun();

  QQmlEngine& engine_;
  AppServices services_;
  std::shared_ptr<CalculateViewController> calculateViewController_;
  std::shared_ptr<LeftViewController> leftViewController_;
  std::shared_ptr<SolutionViewController> solutionViewController_;
  std::shared_ptr<AppPageTabBarController> pageTabBarController_;
  std::shared_ptr<AppToolbarController> appToolbarController_;
  std::shared_ptr<AppNavigationDrawerController> drawer_;
  std::unique_ptr<QQuickWindow> window_;
  std::optional<WindowMemory> windowMemory_;
  QTimer readingAhead_;  // in the history, from the first frame on
};

}  // namespace tavi
