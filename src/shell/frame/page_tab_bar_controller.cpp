#include "shell/frame/page_tab_bar_controller.h"

#include <QPointer>
#include <QQuickWindow>
#include <QTimer>
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

void AppPageTabBarController::viewDidAppear() {
  // The other pages are made while the user looks at the open one, so that opening them takes no time.
  QTimer::singleShot(0, this, [this] {
    for (const auto& page : viewControllers_) page->view();
  });
}

}  // namespace tavi
