#include "shell/frame/page_tab_bar_controller.h"

#include <QEvent>
#include <QPointer>
#include <QQuickWindow>
#include <algorithm>
#include <array>
#include <utility>

#include "number/fatal_stop.h"

namespace tavi {

AppPageTabBarController::AppPageTabBarController(std::vector<std::shared_ptr<ViewController>> viewControllers,
                                                 int selectedIndex)
    : viewControllers_(std::move(viewControllers)), selectedIndex_(selectedIndex) {
  for (const auto& page : viewControllers_) adopt(*page);
}

// The page reads the tabs, so it goes first.
AppPageTabBarController::~AppPageTabBarController() {
  setView(nullptr);
}

QList<TabItem*> AppPageTabBarController::tabItems() const {
  QList<TabItem*> items;
  for (const auto& page : viewControllers_) items.append(page->tabItem());
  return items;
}

ViewController* AppPageTabBarController::selectedController() const {
  return pageAt(selectedIndex_);
}

ViewController* AppPageTabBarController::pageAt(int index) const {
  return viewControllers_.at(static_cast<std::size_t>(index)).get();
}

std::vector<ViewController*> AppPageTabBarController::otherPages() const {
  std::vector<ViewController*> others;
  for (const auto& page : viewControllers_)
    if (page.get() != selectedController()) others.push_back(page.get());
  return others;
}

std::vector<ViewController*> AppPageTabBarController::visibleChildren() const {
  std::vector<ViewController*> visible;
  for (const auto& page : viewControllers_)
    if (isSideBySide_ || page.get() == selectedController()) visible.push_back(page.get());
  return visible;
}

// The selected page stays as it is, with the focus that it has.
void AppPageTabBarController::setSideBySide(bool isSideBySide) {
  if (isSideBySide == isSideBySide_) return;
  const int selected = selectedIndex_;
  const std::vector<ViewController*> others = otherPages();
  const QQuickItem* page = isViewLoaded() ? view() : nullptr;
  const QPointer<QQuickItem> focused = page && page->window() ? page->window()->activeFocusItem() : nullptr;
  if (isAppearing() && !isSideBySide)
    for (ViewController* other : others) other->disappear();
  isSideBySide_ = isSideBySide;
  if (isAppearing() && isSideBySide)
    for (ViewController* other : others) other->beginAppearance();
  emit sideBySideChanged();
  if (isAppearing() && isSideBySide)
    for (ViewController* other : others) other->endAppearance();
  if (focused && focused->isVisible()) focused->forceActiveFocus();
  select(selected);
}

void AppPageTabBarController::select(int index) {
  if (index < 0 || static_cast<std::size_t>(index) >= viewControllers_.size()) fatalStop("no such tab page");
  if (index == selectedIndex_) return;
  const bool comesUp = isAppearing() && !isSideBySide_;
  if (comesUp) selectedController()->disappear();
  selectedIndex_ = index;
  if (comesUp) selectedController()->beginAppearance();
  emit selectedIndexChanged();
  if (comesUp) selectedController()->endAppearance();
}

void AppPageTabBarController::tapTab(int index) {
  if (tabItems().at(index)->isEnabled()) select(index);
}

// The other pages are made once the user begins, after the frame that answers this, so that neither the start
// nor opening them takes the time.
void AppPageTabBarController::viewDidAppear() {
  if (view() && view()->window()) view()->window()->installEventFilter(this);
}

bool AppPageTabBarController::eventFilter(QObject* watched, QEvent* event) {
  constexpr std::array beginnings{QEvent::KeyPress, QEvent::MouseButtonPress, QEvent::TouchBegin};
  if (std::ranges::find(beginnings, event->type()) == beginnings.end()) return false;
  watched->removeEventFilter(this);
  const auto makePages = [this] {
    for (const auto& page : viewControllers_) page->view();
  };
  connect(qobject_cast<QQuickWindow*>(watched), &QQuickWindow::frameSwapped, this, makePages,
          static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
  return false;
}

}  // namespace tavi
