#include "shell/frame/view_controller.h"

#include <QGuiApplication>
#include <QPointer>
#include <QQuickWindow>
#include <QScreen>
#include <QTimer>
#include <algorithm>
#include <iterator>
#include <utility>

#include "appearance/appearance.h"
#include "appearance/interface_fonts.h"
#include "platform/localization.h"
#include "shell/frame/alert_controller.h"
#include "shell/frame/page_loader.h"
#include "shell/frame/view_manager.h"

namespace tavi {

ViewController::ViewController() {
  QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
  connect(&Appearance::shared(), &Appearance::changed, this, [this] {
    if (isViewLoaded_) applyAppearance();
  });
}

ViewController::~ViewController() {
  if (presented_) presented_->presenter_ = nullptr;
}

void ViewController::setPage(QQmlEngine& engine, const QString& page) {
  engine_ = &engine;
  page_ = page;
}

void ViewController::setView(std::unique_ptr<QQuickItem> view) {
  view_ = std::move(view);
}

QQuickItem* ViewController::view() {
  if (!isViewLoaded_) {
    isViewLoaded_ = true;
    if (!view_ && engine_) load();
    viewDidLoad();
    applyAppearance();
  }
  return view_.get();
}

void ViewController::load() {
  view_ = loadPage<QQuickItem>(*engine_, page_, {{QStringLiteral("controller"), QVariant::fromValue(this)}});
}

void ViewController::beginAppearance() {
  if (isAppearing_) return;
  isAppearing_ = true;
  view();
  viewWillAppear();
  for (ViewController* child : visibleChildren()) child->beginAppearance();
}

void ViewController::endAppearance() {
  viewDidAppear();
  for (ViewController* child : visibleChildren()) child->endAppearance();
}

void ViewController::disappear() {
  if (!isAppearing_) return;
  isAppearing_ = false;
  viewWillDisappear();
  for (ViewController* child : visibleChildren()) child->disappear();
}

void ViewController::present(std::shared_ptr<ViewController> controller, bool isAnimated) {
  if (parentController_) return parentController_->present(std::move(controller), isAnimated);
  waiting_.push_back({std::move(controller), isAnimated});
  presentNext();
}

void ViewController::presentNext() {
  if (presented_ || isLeaving_ || waiting_.empty()) return;
  Request next = std::move(waiting_.front());
  waiting_.pop_front();
  presented_ = std::move(next.controller);
  presented_->presenter_ = this;
  presented_->isPresentationAnimated_ = next.isAnimated;
  presented_->beginAppearance();
  emit presentedControllerChanged();
  presented_->endAppearance();
}

void ViewController::dismissPresented(Completion completion) {
  if (parentController_) return parentController_->dismissPresented(std::move(completion));
  if (completion) dismissalCompletions_.push_back(std::move(completion));
  if (!presented_) return finishDismissal();
  if (presented_->isLeaving_) return;
  presented_->isLeaving_ = true;
  presented_->dismissPresented();
  presented_->disappear();
  const bool isShown = presented_->isPresentationShown_;
  emit presented_->leavingChanged();
  if (!isShown) finishDismissal();
}

void ViewController::presentationGone() {
  isPresentationShown_ = false;
  if (isLeaving_ && presenter_) presenter_->finishDismissal();
}

/// What waited for its turn over the one that is gone comes up over this one.
void ViewController::finishDismissal() {
  const QPointer<ViewController> self(this);
  if (const std::shared_ptr<ViewController> gone = std::exchange(presented_, nullptr)) {
    gone->presenter_ = nullptr;
    gone->isLeaving_ = false;
    std::ranges::move(std::exchange(gone->waiting_, {}), std::back_inserter(waiting_));
    emit presentedControllerChanged();
    releaseLater(gone);
  }
  for (const Completion& completion : std::exchange(dismissalCompletions_, {})) completion();
  if (self) presentNext();
}

void ViewController::dismiss(Completion completion) {
  if (presenter_) return presenter_->dismissPresented(std::move(completion));
  if (completion) completion();
}

void ViewController::presentAlert(const std::optional<QString>& title, const std::optional<QString>& message,
                                  std::vector<AlertAction> actions, AlertStyle style) {
  const ViewController* root = this;
  while (root->parentController_) root = root->parentController_;
  auto alert = std::make_shared<AlertController>(title, message, std::move(actions), style);
  if (root->engine_) alert->setPage(*root->engine_, QStringLiteral("shell/frame/AlertPage.qml"));
  present(std::move(alert));
}

void ViewController::setUpTabItem(const QString& title, bool isEnabled) {
  tabItem_.setTitle(title);
  tabItem_.setFont(InterfaceFont::medium(14));
  tabItem_.setEnabled(isEnabled);
}

void ViewController::runWhenOnline(std::function<void()> action, std::function<void()> failureAction,
                                   const OnlineTest& test) {
  ViewManager::showSpinner();
  test.run(this, [this, action = std::move(action), failureAction = std::move(failureAction)](bool isOnline) {
    ViewManager::hideSpinner();
    if (isOnline) return action();
    std::vector<AlertAction> actions;
    if (failureAction) actions.push_back({localized("OK"), failureAction});
    presentAlert(localized("noInternet"), std::nullopt, std::move(actions), AlertStyle::alert);
  });
}

void ViewController::replaceChild(std::shared_ptr<ViewController>& slot, std::shared_ptr<ViewController> next,
                                  const std::function<void()>& show) {
  if (isAppearing_) slot->disappear();
  std::shared_ptr<ViewController> old = std::exchange(slot, std::move(next));
  release(*old);
  adopt(*slot);
  if (isAppearing_) slot->beginAppearance();
  show();
  if (isAppearing_) slot->endAppearance();
  releaseLater(std::move(old));
}

void ViewController::releaseLater(std::shared_ptr<ViewController> controller) {
  // Each at a time of its own, as what presents it goes a turn before it.
  leaving_.push_back(std::move(controller));
  QTimer::singleShot(0, this, [this] {
    const std::shared_ptr<ViewController> gone = std::move(leaving_.front());
    leaving_.pop_front();
  });
}

double bottomSafeAreaInset() {
  const auto windows = QGuiApplication::topLevelWindows();
  if (windows.isEmpty()) return 0;
  const QWindow* window = windows.last();
  if (!window->screen() || window->visibility() != QWindow::FullScreen) return 0;
  return std::max(0, window->screen()->geometry().bottom() - window->screen()->availableGeometry().bottom());
}

}  // namespace tavi
