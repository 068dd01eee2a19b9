#include "solution/solution_view_controller.h"

#include "appearance/color_manager.h"
#include "number/fatal_stop.h"
#include "platform/analytics.h"
#include "platform/localization.h"
#include "remote/analytics_events.h"
#include "shell/page_tab_bar_controller.h"
#include "shell/toolbar_controller.h"
#include "solution/step_records.h"

namespace tavi {

SolutionViewController::SolutionViewController(const RemoteConfigManager& remoteConfig,
                                               NotificationCenter& notifications)
    : remoteConfig_(remoteConfig), notifications_(notifications) {
  updateTabItem();
}

void SolutionViewController::showSolution(AppPageTabBarController* tabs,
                                          const std::optional<SolutionSteps>& solutionSteps,
                                          const QString& manualImageName,
                                          const std::optional<RowHeights>& configuredRowHeight,
                                          double rowHeight) {
  if (!tabs) return;
  auto* page = qobject_cast<SolutionViewController*>(elementAt(tabs->viewControllers(), 1).get());
  if (!page || !solutionSteps) return;
  page->solutionSteps_ = *solutionSteps;
  page->manualImageName_ = manualImageName;
  page->configuredRowHeight_ = configuredRowHeight;
  page->rowHeight_ = rowHeight;
  page->reloadTable();
  page->scrollToTop();
  tabs->select(1);
}

void SolutionViewController::handleClearAllButton() {
  scrollToTop();
  solutionSteps_.clear();
  updateTabItem();
  manualImageName_.clear();
  hasFooter_ = false;
  reloadTable();
  emit layoutChanged();
}

double SolutionViewController::heightForRow(int row) const {
  return configuredRowHeight_ ? configuredRowHeight_->value(row, rowHeight_) : rowHeight_;
}

double SolutionViewController::configureCell(SolutionStepTableViewCell* cell, int row) const {
  const SolutionStep& step = elementAt(solutionSteps_, static_cast<std::size_t>(row));
  cell->setStepTitle(QString::fromStdString(required(step.title, "a step has no title")));
  cell->setStepContent(step);
  return heightForRow(row);
}

/// Making and sharing the picture of the solution is not there yet.
void SolutionViewController::tappedShareButton() {
  const QVariantList records = stepRecords(solutionSteps_);
  Analytics::logEvent(events::taviTappedShare,
                      QVariantMap{{QStringLiteral("solutionSteps"), records},
                                  {QStringLiteral("solutionStepsCount"), qlonglong{records.size()}}});
}

void SolutionViewController::manualButtonPressed() {
  if (!manualImageName_.isEmpty()) emit manualRequested(manualImageName_);
}

void SolutionViewController::viewDidLoad() {
  updateTabItem();
  notifications_.observe(clearCurrentCalculation, this, [this] { handleClearAllButton(); });
}

void SolutionViewController::viewWillAppear() {
  isManualButtonHidden_ = manualImageName_.isEmpty();
  isShareButtonHidden_ = solutionSteps_.empty();
  updateTabItem();
  videoUrlStrings_ = remoteConfig_.videoLinks(VideoTopic::powersAndRoots);
  hasFooter_ = true;
  reloadTable();
  bottomBannerInset_ = bottomSafeAreaInset();
  emit layoutChanged();
  if (view()) ColorManager::applyStyleToSubviews(*view());
  if (auto* toolbarController = ancestor<BasicToolbarController>())
    toolbarController->toolbar()->setTitle(localized("Calculate Title"));
}

void SolutionViewController::updateTabItem() {
  setUpTabItem(localized("Result"), !solutionSteps_.empty());
}

void SolutionViewController::scrollToTop() {
  if (table_.rowCount() > 0) emit scrollToTopRequested();
}

}  // namespace tavi
