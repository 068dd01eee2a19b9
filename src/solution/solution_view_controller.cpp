#include "solution/solution_view_controller.h"

#include "number/fatal_stop.h"
#include "platform/localization.h"
#include "shell/page_tab_bar_controller.h"

namespace tavi {

SolutionViewController::SolutionViewController() {
  setUpTabItem(localized("Result"), false);
}

void SolutionViewController::showSolution(AppPageTabBarController* tabs,
                                          std::optional<SolutionSteps> solutionSteps, const QString&,
                                          std::optional<QMap<int, double>>, double) {
  if (!tabs) return;
  if (tabs->viewControllers().size() < 2) fatalStop("there is no solution page");
  auto* page = qobject_cast<SolutionViewController*>(tabs->viewControllers()[1].get());
  if (!page || !solutionSteps) return;
  page->solutionSteps_ = std::move(*solutionSteps);
  tabs->select(1);
}

void SolutionViewController::handleClearAllButton() {
  solutionSteps_.clear();
  tabItem()->setEnabled(false);
}

}  // namespace tavi
