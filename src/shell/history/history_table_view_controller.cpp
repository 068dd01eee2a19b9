#include "shell/history/history_table_view_controller.h"

#include <QPointer>
#include <utility>

#include "appearance/color_manager.h"
#include "appearance/interface_colors.h"
#include "platform/analytics.h"
#include "platform/localization.h"
#include "remote/analytics_events.h"
#include "shell/frame/alert_controller.h"
#include "shell/frame/navigation_drawer_controller.h"
#include "shell/frame/toolbar_controller.h"
#include "shell/frame/view_manager.h"

namespace tavi {

HistoryTableViewController::HistoryTableViewController(CalcManager& store, RootFactory makeRoot,
                                                       NotificationCenter& notifications)
    : store_(store), notifications_(notifications), makeRoot_(std::move(makeRoot)) {}

void HistoryTableViewController::viewDidLoad() {
  ViewController::viewDidLoad();
  table_.reload(numberOfRowsInSection(0));
  // By a page of an earlier visit; this one shows its own at once.
  notifications_.observe(didRestoreCalculations, this, [this] {
    if (const int rows = numberOfRowsInSection(0); rows != table_.rowCount()) table_.reload(rows);
  });
  editButton = makeButton("Edit", "edit", &HistoryTableViewController::handleEditButton);
  clearAllButton = makeButton("Clear History", "clear", &HistoryTableViewController::handleClearAllButton);
}

void HistoryTableViewController::applyAppearance() {
  if (const QQuickItem* root = view()) ColorManager::applyStyleToSubviews(*root);
}

std::shared_ptr<ToolbarButton> HistoryTableViewController::makeButton(const char* title, const char* icon,
                                                                      Handler handler) {
  auto button = std::make_shared<ToolbarButton>();
  button->title = localized(title);
  button->icon = QString::fromLatin1(icon);
  button->accessibilityIdentifier = QStringLiteral("history") + QString::fromLatin1(icon);
  button->tintColor = InterfaceColor::darkTitle();
  button->action = [page = QPointer(this), handler] {
    if (page) (page->*handler)();
  };
  return button;
}

void HistoryTableViewController::viewDidAppear() {
  auto* toolbarController = ancestor<BasicToolbarController>();
  if (!toolbarController) return;
  toolbarController->toolbar()->setTitle(localized("History"));
  toolbarController->toolbar()->setRightViews({clearAllButton, editButton});
}

int HistoryTableViewController::numberOfRowsInSection(int) const {
  return static_cast<int>(store_.calculations().size());
}

void HistoryTableViewController::cellForRow(HistoryTableViewCell* cell, int row) const {
  cell->mathLabel->setLatex(store_.calculation(row).latexString);
}

bool HistoryTableViewController::canEditRow(int) {
  return true;
}

bool HistoryTableViewController::canMoveRow(int) {
  return true;
}

void HistoryTableViewController::moveRow(int from, int to) {
  store_.swapCalculations(from, to);
  table_.move(from, to);
}

void HistoryTableViewController::commitEditingStyle(EditingStyle style, int row) {
  if (style != EditingStyle::Delete) return;
  Analytics::logEvent(events::tappedHistoryDeleteSingleCalc);
  const StoredCalculations removed = store_.removeCalculation(row);
  table_.remove(row);
  offerUndo(localized("historyDeleted"), removed);
}

void HistoryTableViewController::didSelectRow(int row) {
  emit rowReloaded(row);
  const Calculation calculation = store_.calculation(row);
  store_.setCurrentCalculation(std::nullopt);
  store_.setCurrentSelectedCalculation(calculation);
  QVariantMap inputs;
  for (const auto& [field, text] : calculation.inputParameters.asKeyValueRange()) inputs[field] = text;
  Analytics::logEvent(events::tappedHistoryItem,
                      QVariantMap{{QStringLiteral("calc_parameters"), inputs},
                                  {QStringLiteral("latex_string"), calculation.latexString}});
  openCalculatePage();
}

void HistoryTableViewController::openCalculatePage() {
  auto* drawer = ancestor<AppNavigationDrawerController>();
  if (drawer) drawer->transition(makeRoot_(), [drawer] { drawer->closeLeftView(); });
}

void HistoryTableViewController::handleEditButton() {
  isEditing_ = !isEditing_;
  editButton->setOn(isEditing_);
  emit isEditingChanged();
}

void HistoryTableViewController::handleClearAllButton() {
  presentAlert(localized("Clear History"), localized("Are you sure to delete your whole history?"),
               {{.title = localized("Clear"),
                 .handler =
                     [page = QPointer(this)] {
                       if (page) page->clear();
                     },
                 .isDestructive = true},
                {.title = localized("Cancel"), .style = AlertActionStyle::cancel}},
               AlertStyle::alert);
}

void HistoryTableViewController::clear() {
  Analytics::logEvent(events::tappedHistoryClear,
                      QVariantMap{{QStringLiteral("calc_count"), qlonglong{store_.calculations().size()}}});
  const StoredCalculations removed = store_.clearCalculations();
  table_.reload(numberOfRowsInSection(0));
  if (!removed.isEmpty()) offerUndo(localized("historyCleared"), removed);
}

void HistoryTableViewController::offerUndo(const QString& text, const StoredCalculations& removed) {
  const auto undo = [page = QPointer(this), &store = store_, &notifications = notifications_, removed] {
    const auto row = static_cast<int>(store.restoreCalculations(removed));
    if (page && removed.size() == 1) page->showRestored(row);
    notifications.post(didRestoreCalculations);
  };
  ViewManager::showToast(text, {localized("Undo"), undo});
}

void HistoryTableViewController::showRestored(int row) {
  table_.insert(row);
  emit rowRestored(row);
}

}  // namespace tavi
