#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QQuickItem>
#include <QTcpServer>
#include <QTemporaryDir>
#include <memory>

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
  Q_PROPERTY(bool isDismissed READ isDismissed)
  Q_PROPERTY(QString chosen READ chosen)
  Q_PROPERTY(QString openedLink READ openedLink)
  Q_PROPERTY(int onlineTests READ onlineTests)

 public:
  /// A fresh frame that fills the holder.
  Q_INVOKABLE void open(QQuickItem* holder);
  Q_INVOKABLE void close();

  Q_INVOKABLE void enableTab(int index, bool isEnabled);
  Q_INVOKABLE void toast(const QString& text, const QString& action = {});
  Q_INVOKABLE void spin(bool isSpinning);
  /// Asks with a button per title; the answer is added to `chosen`. A "!" marks what destroys, and "Cancel"
  /// cancels.
  Q_INVOKABLE void ask(const QStringList& titles);
  /// Presents an empty view, "presented"; `isDismissed` once that is gone.
  Q_INVOKABLE void present(int style, bool isAnimated);
  Q_INVOKABLE void dismiss();
  /// From now on no link can be opened.
  Q_INVOKABLE void refuseLinks();
  /// Who has asked whether the network is there gets an answer, or none however often he asks again.
  Q_INVOKABLE void answerOnlineTests(bool isOnline);

  int selectedIndex() const { return tabs_->selectedIndex(); }
  bool isDrawerOpen() const { return drawer_->isLeftViewOpened(); }
  bool isDismissed() const { return isDismissed_; }
  QString chosen() const { return chosen_; }
  QString openedLink() const { return openedLink_; }
  int onlineTests() const { return static_cast<int>(onlineTests_.size()); }

 public slots:
  void qmlEngineAvailable(QQmlEngine* engine);

 private:
  /// What the menu works with: stores of its own, a list of applications, links that go nowhere.
  struct Services {
    QTemporaryDir folder;
    PreferenceStore preferences{folder.filePath("preferences.sqlite")};
    CalcManager calcManager{preferences};
    RemoteConfigService remoteConfig{{}, folder.filePath("remote.sqlite")};
    ResourceBundle records{QStringLiteral(TAVI_SOURCE_DIR "/tests/qml/frame")};
    RemoteConfigManager remoteConfigManager{remoteConfig, NotificationCenter::shared(), records};
    ProjectSettings settings{
        .communityLink = QUrl("https://community.example.org/tavi"), .videoHost = {}, .videoPlayer = {}};
    NotificationCenter notifications;
    Links links;
  };

  /// Where the online test asks.
  QTcpServer* network_ = nullptr;
  QList<QTcpSocket*> onlineTests_;
  bool isOffline_ = false;
  OnlineTest onlineTest_;
  QQmlEngine* engine_ = nullptr;
  bool isDismissed_ = false;
  QString chosen_;
  QString openedLink_;
  std::unique_ptr<Services> services_;
  std::shared_ptr<AppPageTabBarController> tabs_;
  std::shared_ptr<AppNavigationDrawerController> drawer_;
  std::unique_ptr<QQuickItem> host_;
};

}  // namespace tavi
