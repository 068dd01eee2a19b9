#include "shell/frame/page_tab_bar_controller.h"

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
  return viewControllers_.at(static_cast<std::size_t>(selectedIndex_)).get();
}

void AppPageTabBarController::select(int index) {
  if (index < 0 || static_cast<std::size_t>(index) >= viewControllers_.size()) fatalStop("no such tab page");
  if (index == selectedIndex_) return;
  if (isAppearing()) selectedController()->disappear();
  selectedIndex_ = index;
  if (isAppearing()) selectedController()->beginAppearance();
  emit selectedIndexChanged();
  if (isAppearing()) selectedController()->endAppearance();
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
