#include "shell/launch/app_delegate.h"

#include <QGuiApplication>
#include <utility>

#include "input/error_manager.h"
#include "number/fatal_stop.h"
#include "output/catalogues.h"
#include "platform/localization.h"
#include "platform/preferences.h"
#include "platform/resource_bundle.h"
#include "remote/consent/dsgvo_manager.h"
#include "remote/introduction/onboarding_manager.h"
#include "shell/frame/page_loader.h"
#include "shell/frame/window_messages.h"

namespace tavi {

namespace {

/// Builds the controller of a lazy field and gives it its page.
template <typename Controller, typename... Arguments>
void build(std::shared_ptr<Controller>& field, QQmlEngine& engine, const char* page,
           Arguments&&... arguments) {
  field = std::make_shared<Controller>(std::forward<Arguments>(arguments)...);
  field->setPage(engine, QString::fromLatin1(page));
}

/// Later, since what could not be kept may be a success, which takes away what is said before it.
void sayLaterThatNothingIsKept() {
  const auto say = [] { messagesOverWindow().showToast(localized("nothingIsKept")); };
  QMetaObject::invokeMethod(qGuiApp, say, Qt::QueuedConnection);
}

}  // namespace

AppDelegate::AppDelegate(QQmlEngine& engine, AppServices services)
    : engine_(engine), services_(std::move(services)) {
  if (!services_.rating)
    services_.rating = std::make_shared<RatingViewController>(
        services_.userDefaults, services_.onlineTest, [this] { leftViewController()->openRatingPage(); });
}

AppDelegate::~AppDelegate() = default;

void AppDelegate::didFinishLaunching() {
  TaviFormulaUnit::installReader(readResource);
  ErrorManager::shared().setPresenter(messagesOverWindow());
  services_.remoteConfigManager.reload();
  services_.calcManager.runFirstStartStep();

  std::shared_ptr<MenuToolbarController> menu;
  build(menu, engine_, "shell/frame/ToolbarPage.qml", leftViewController(),
        [this] { leftViewController()->showSettings(); });
  build(drawer_, engine_, "shell/frame/DrawerPage.qml", appToolbarController(), menu);
  openWindow();
  presentFirstRun();
  services_.userDefaults.setRefusalHandler(sayLaterThatNothingIsKept);

  connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
    if (state == Qt::ApplicationActive) didBecomeActive();
  });
}

void AppDelegate::openTask(const Calculation& task) {
  PreferenceStore& store = services_.userDefaults;
  if (store.value(preferences::isOnboardingFinished) && store.value(preferences::isDsgvoAccepted))
    drawer_->dismissPresented();
  if (!task.inputParameters.isEmpty()) services_.calcManager.setCurrentSelectedCalculation(task);
  const std::shared_ptr<AppToolbarController> root = AppDelegate(engine_, services_).appToolbarController();
  drawer_->transition(root, [this] { drawer_->closeLeftView(); });
  auto* tabs = qobject_cast<AppPageTabBarController*>(root->rootController());
  auto* page = tabs ? qobject_cast<CalculateViewController*>(tabs->selectedController()) : nullptr;
  if (!page) fatalStop("fresh pages without the one for input");
  if (!task.inputParameters.isEmpty())
    page->performCalculation();
  else
    page->segmentedControlValueChanged(task.setupParameter[CalculateViewController::modeKey].toInt());
}

void AppDelegate::didBecomeActive() {
  constexpr std::chrono::seconds expiry{21600};
  services_.remoteConfig.fetch(expiry, [&manager = services_.remoteConfigManager](
                                           FetchStatus status, const std::optional<QString>& error) {
    manager.handleFetchResult(status, error);
  });
  services_.notifications.post(NotificationCenter::applicationDidBecomeActive);
}

void AppDelegate::openWindow() {
  window_ = loadPage<QQuickWindow>(
      engine_, QStringLiteral("shell/frame/AppWindow.qml"),
      {{QStringLiteral("rootController"), QVariant::fromValue<ViewController*>(drawer_.get())}});
  windowMemory_.emplace(*window_, services_.userDefaults);
  // A long history is read once there is something to be seen, piece by piece.
  connect(&readingAhead_, &QTimer::timeout, this, [this] {
    if (!services_.calcManager.readAhead()) readingAhead_.stop();
  });
  connect(
      window_.get(), &QQuickWindow::frameSwapped, &readingAhead_, [this] { readingAhead_.start(); },
      static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
  drawer_->beginAppearance();
  windowMemory_->show();
  drawer_->endAppearance();
}

/// The introduction until it was seen to its end, and over it, or over the pages, the privacy text until it
/// was accepted.
void AppDelegate::presentFirstRun() {
  PreferenceStore& store = services_.userDefaults;
  std::shared_ptr<ViewController> top = drawer_;
  if (!store.value(preferences::isOnboardingFinished)) {
    const auto onboarding = OnboardingManager::introduction(store);
    onboarding->setPresentationStyle(ViewController::PresentationStyle::OverFullScreen);
    onboarding->presentFrom(*drawer_, false);
    top = onboarding;
  }
  if (!store.value(preferences::isDsgvoAccepted)) DsgvoManager::showConsent(*top, store);
}

const std::shared_ptr<CalculateViewController>& AppDelegate::calculateViewController() {
  if (!calculateViewController_) {
    build(calculateViewController_, engine_, "shell/CalculatePage.qml", services_.calcManager,
          services_.notifications);
    CalculateViewController* page = calculateViewController_.get();
    connect(page, &CalculateViewController::appeared, page,
            [page, rating = services_.rating] { rating->presentIfNeeded(*page); });
  }
  return calculateViewController_;
}

const std::shared_ptr<LeftViewController>& AppDelegate::leftViewController() {
  if (!leftViewController_) {
    LeftViewController::Screens screens{.makeRoot = rootFactory(),
                                        .makeHistory = [this] { return makeHistoryTableViewController(); }};
    build(leftViewController_, engine_, "shell/menu/LeftPage.qml", std::move(screens), services_);
  }
  return leftViewController_;
}

const std::shared_ptr<SolutionViewController>& AppDelegate::solutionViewController() {
  if (!solutionViewController_)
    build(solutionViewController_, engine_, "solution/SolutionPage.qml", services_.remoteConfigManager,
          services_.notifications, services_.userDefaults, services_.settings, services_.links);
  return solutionViewController_;
}

const std::shared_ptr<AppPageTabBarController>& AppDelegate::pageTabBarController() {
  if (!pageTabBarController_) {
    std::vector<std::shared_ptr<ViewController>> pages{calculateViewController(), solutionViewController()};
    build(pageTabBarController_, engine_, "shell/frame/TabsPage.qml", std::move(pages), 0);
  }
  return pageTabBarController_;
}

const std::shared_ptr<AppToolbarController>& AppDelegate::appToolbarController() {
  if (!appToolbarController_)
    build(appToolbarController_, engine_, "shell/frame/ToolbarPage.qml", pageTabBarController());
  return appToolbarController_;
}

std::shared_ptr<HistoryTableViewController> AppDelegate::makeHistoryTableViewController() {
  std::shared_ptr<HistoryTableViewController> history;
  build(history, engine_, "shell/history/HistoryPage.qml", services_.calcManager, rootFactory(),
        services_.notifications);
  return history;
}

std::function<std::shared_ptr<ViewController>()> AppDelegate::rootFactory() const {
  return [&engine = engine_, services = services_] {
    return AppDelegate(engine, services).appToolbarController();
  };
}

}  // namespace tavi
