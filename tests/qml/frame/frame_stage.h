#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QQuickItem>
#include <QTemporaryDir>
#include <memory>
#include <optional>

#include "shell/app_services.h"
#include "shell/frame/navigation_drawer_controller.h"
#include "shell/frame/page_tab_bar_controller.h"
#include "shell/frame/toolbar_controller.h"

namespace tavi {

/// Sets the frame of the application up around two empty pages and the side menu, for tests that tap on it,
/// as the context property "stage".
class FrameStage : public QObject {
  Q_OBJECT
  Q_PROPERTY(int selectedIndex READ selectedIndex)
  Q_PROPERTY(bool isDrawerOpen READ isDrawerOpen)
  Q_PROPERTY(QString chosen READ chosen)
  Q_PROPERTY(QString openedLink READ openedLink)

 public:
  /// A fresh frame that fills the holder.
  Q_INVOKABLE void open(QQuickItem* holder);
  Q_INVOKABLE void close();

  Q_INVOKABLE void enableTab(int index, bool isEnabled);
  Q_INVOKABLE void toast(const QString& text);
  Q_INVOKABLE void spin(bool isSpinning);
  /// Asks with two buttons, "No" and "Yes"; the answer is then `chosen`.
  Q_INVOKABLE void ask();

  int selectedIndex() const { return tabs_->selectedIndex(); }
  bool isDrawerOpen() const { return drawer_->isLeftViewOpened(); }
  QString chosen() const { return chosen_; }
  QString openedLink() const { return openedLink_; }

 public slots:
  void qmlEngineAvailable(QQmlEngine* engine);

 private:
  /// What the menu works with: stores of its own, the built-in list of applications, links that go nowhere.
  struct Services {
    QTemporaryDir folder;
    PreferenceStore preferences{folder.filePath("preferences.sqlite")};
    CalcManager calcManager{preferences};
    RemoteConfigService remoteConfig{{}, folder.filePath("remote.sqlite")};
    RemoteConfigManager remoteConfigManager{remoteConfig};
    NotificationCenter notifications;
    Links links;
  };

  QQmlEngine* engine_ = nullptr;
  QString chosen_;
  QString openedLink_;
  std::optional<Services> services_;
  std::shared_ptr<AppPageTabBarController> tabs_;
  std::shared_ptr<AppNavigationDrawerController> drawer_;
  std::unique_ptr<QQuickItem> host_;
};

}  // namespace tavi
