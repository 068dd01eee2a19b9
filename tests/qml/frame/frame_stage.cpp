#include "frame_stage.h"

#include <QQmlContext>
#include <QTcpSocket>
#include <utility>

#include <QtQml/qqmlextensionplugin.h>
#include <QtQuickTest/quicktest.h>

#include "offscreen.h"
#include "shell/frame/alert_controller.h"
#include "shell/frame/controller_host.h"
#include "shell/frame/view_manager.h"
#include "shell/menu/left_view_controller.h"

Q_IMPORT_QML_PLUGIN(TaviPlugin)

namespace tavi {

namespace {

template <typename Controller, typename... Arguments>
std::shared_ptr<Controller> made(QQmlEngine& engine, const char* page, Arguments&&... arguments) {
  auto controller = std::make_shared<Controller>(std::forward<Arguments>(arguments)...);
  controller->setPage(engine, QString::fromLatin1(page));
  return controller;
}

}  // namespace

void FrameStage::open(QQuickItem* holder) {
  chosen_.clear();
  ViewManager::hideToast();
  openedLink_.clear();
  isOffline_ = false;
  services_ = std::make_unique<Services>();
  Services& services = *services_;
  services.links.setHandler([](const QUrl& url) { return url.scheme() == u"https"; },
                            [this](const QUrl& url) {
                              openedLink_ = url.toString();
                              return true;
                            });
  services.remoteConfigManager.loadApps(services.remoteConfig);
  std::vector<std::shared_ptr<ViewController>> pages;
  for (const char* title : {"Input", "Result"}) {
    pages.push_back(std::make_shared<ViewController>());
    pages.back()->setView(std::make_unique<QQuickItem>());
    pages.back()->setUpTabItem(QString::fromLatin1(title), true);
  }
  tabs_ = made<AppPageTabBarController>(*engine_, "shell/frame/TabsPage.qml", std::move(pages));
  auto menu = made<LeftViewController>(
      *engine_, "shell/menu/LeftPage.qml", LeftViewController::Screens(),
      AppServices{services.remoteConfig, services.remoteConfigManager, services.calcManager,
                  services.preferences, services.notifications, services.links, onlineTest_,
                  ApplicationContext::current, services.settings});
  drawer_ = made<AppNavigationDrawerController>(
      *engine_, "shell/frame/DrawerPage.qml",
      made<AppToolbarController>(*engine_, "shell/frame/ToolbarPage.qml", tabs_),
      made<MenuToolbarController>(*engine_, "shell/frame/ToolbarPage.qml", std::move(menu)));
  drawer_->beginAppearance();
  auto host = std::make_unique<ControllerHost>(holder);
  host->setSize(holder->size());
  const auto fill = [host = host.get(), holder] { host->setSize(holder->size()); };
  connect(holder, &QQuickItem::widthChanged, host.get(), fill);
  connect(holder, &QQuickItem::heightChanged, host.get(), fill);
  host->setController(drawer_.get());
  host_ = std::move(host);
  drawer_->endAppearance();
}

void FrameStage::close() {
  host_.reset();
  drawer_.reset();
  tabs_.reset();
  services_.reset();
}

void FrameStage::enableTab(int index, bool isEnabled) {
  tabs_->viewControllers()[static_cast<std::size_t>(index)]->tabItem()->setEnabled(isEnabled);
}

void FrameStage::toast(const QString& text, const QString& action) {
  ViewManager::showToast(text, {action, [this, action] { chosen_ += action; }});
}

void FrameStage::spin(bool isSpinning) {
  if (isSpinning)
    ViewManager::showSpinner();
  else
    ViewManager::hideSpinner();
}

void FrameStage::ask(const QStringList& titles) {
  std::vector<AlertAction> actions;
  for (const QString& title : titles)
    actions.push_back({.title = title,
                       .handler = [this, title] { chosen_ += title; },
                       .style = title == u"Cancel" ? AlertActionStyle::cancel : AlertActionStyle::normal,
                       .isDestructive = title.startsWith(u'!')});
  tabs_->presentAlert("Sure?", "Think again.", std::move(actions), AlertStyle::alert);
}

void FrameStage::present(int style, bool isAnimated) {
  auto controller = std::make_shared<ViewController>();
  controller->setPage(*engine_, {});  // the view stands already
  auto view = std::make_unique<QQuickItem>();
  view->setObjectName("presented");
  view->setImplicitHeight(200);
  controller->setView(std::move(view));
  controller->setPresentationStyle(static_cast<ViewController::PresentationStyle>(style));
  isDismissed_ = false;
  tabs_->present(std::move(controller), isAnimated);
}

void FrameStage::dismiss() {
  tabs_->dismissPresented([this] { isDismissed_ = true; });
}

void FrameStage::refuseLinks() {
  services_->links.setHandler([](const QUrl&) { return true; }, [](const QUrl&) { return false; });
}

void FrameStage::answerOnlineTests(bool isOnline) {
  isOffline_ = !isOnline;
  for (QTcpSocket* test : std::exchange(onlineTests_, {})) {
    if (isOnline) test->write("HTTP/1.1 200 OK\r\nContent-Length: 0\r\n\r\n");
    test->disconnectFromHost();
  }
}

void FrameStage::qmlEngineAvailable(QQmlEngine* engine) {
  engine_ = engine;
  network_ = new QTcpServer(engine);
  network_->listen(QHostAddress::LocalHost);
  connect(network_, &QTcpServer::newConnection, this, [this] {
    QTcpSocket* test = network_->nextPendingConnection();
    if (isOffline_) return test->abort();
    onlineTests_.append(test);
  });
  onlineTest_ = OnlineTest(QUrl(QStringLiteral("http://127.0.0.1:%1/").arg(network_->serverPort())));
  engine->rootContext()->setContextProperty("stage", this);
}

}  // namespace tavi

int main(int argc, char** argv) {
  tavi::useOffscreenScreen();
  tavi::FrameStage stage;
  return quick_test_main_with_setup(argc, argv, "frame", TAVI_QML_TESTS, &stage);
}
