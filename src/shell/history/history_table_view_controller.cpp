#include "shell/history/history_table_view_controller.h"

#include <QClipboard>
#include <QGuiApplication>
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
#include "shell/history/typed_text.h"

namespace tavi {

namespace {

// What a key may wait for, and what a frame has to spare.
constexpr std::chrono::milliseconds firstPiece{20};
constexpr std::chrono::milliseconds furtherPiece{6};

}  // namespace

HistoryTableViewController::HistoryTableViewController(CalcManager& store, RootFactory makeRoot,
                                                       NotificationCenter& notifications)
    : store_(store), notifications_(notifications), makeRoot_(std::move(makeRoot)) {
  connect(&searching_, &QTimer::timeout, this, &HistoryTableViewController::goOnSearching);
}

void HistoryTableViewController::viewDidLoad() {
  ViewController::viewDidLoad();
  table_.reload(moments(0));
  // By another page, or by one of an earlier visit; a row that this one puts back it shows at once.
  notifications_.observe(CalcManager::didRestoreCalculations, this, [this] {
    if (isSearching() || numberOfRowsInSection(0) != table_.rowCount()) reload();
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
  return static_cast<int>(isSearching() ? search_.found().size() : store_.calculations().size());
}

/// Of the record that a row shows.
qsizetype HistoryTableViewController::indexOf(int row) const {
  if (!isSearching()) return row;
  return row >= 0 && row < search_.found().size() ? search_.found()[row] : -1;
}

QList<QDateTime> HistoryTableViewController::moments(qsizetype first) const {
  QList<QDateTime> moments;
  const int rows = numberOfRowsInSection(0);
  moments.reserve(rows - first);
  for (auto row = static_cast<int>(first); row < rows; ++row)
    moments.append(store_.calculation(indexOf(row)).calculatedAt);
  return moments;
}

void HistoryTableViewController::setSearchText(const QString& text) {
  if (text == searchText_) return;
  searchText_ = text;
  search();
}

void HistoryTableViewController::search() {
  const bool wasSearching = isSearching();
  search_.begin(searchText_);
  if (isSearching()) search_.goOn(firstPiece);
  if (isSearching() || wasSearching) table_.reload(moments(0));
  if (!search_.isThrough()) searching_.start();
  emit searchChanged();
}

void HistoryTableViewController::goOnSearching() {
  search_.goOn(furtherPiece);
  if (search_.isThrough()) searching_.stop();
  if (!isSearching()) return;
  table_.append(moments(table_.rowCount()));
  if (search_.isThrough()) emit searchChanged();
}

void HistoryTableViewController::reload() {
  search_.forget();
  if (isSearching())
    search();
  else
    table_.reload(moments(0));
}

void HistoryTableViewController::cellForRow(HistoryTableViewCell* cell, int row) const {
  cell->mathLabel->setLatex(store_.calculation(indexOf(row)).latexString);
}

bool HistoryTableViewController::canEditRow(int) {
  return true;
}

bool HistoryTableViewController::canMoveRow(int) const {
  return !isSearching();
}

void HistoryTableViewController::moveRow(int from, int to) {
  if (!canMoveRow(from)) return;
  search_.forget();
  store_.swapCalculations(from, to);
  table_.move(from, to);
}

void HistoryTableViewController::commitEditingStyle(EditingStyle style, int row) {
  if (style != EditingStyle::Delete) return;
  Analytics::logEvent(events::tappedHistoryDeleteSingleCalc);
  const qsizetype index = indexOf(row);
  const StoredCalculations removed = store_.removeCalculation(index);
  search_.remove(index);
  table_.remove(row);
  offerUndo(localized("historyDeleted"), removed);
}

void HistoryTableViewController::copyRow(int row, CopyForm form) const {
  const Calculation& calculation = store_.calculation(indexOf(row));
  const QString typed = form == CopyForm::Typed ? typedText(calculation) : QString();
  QGuiApplication::clipboard()->setText(typed.isEmpty() ? calculation.latexString : typed);
  ViewManager::showToast(localized("sharingCopied"));
}

void HistoryTableViewController::didSelectRow(int row) {
  emit rowReloaded(row);
  const Calculation calculation = store_.calculation(indexOf(row));
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
  reload();
  if (!removed.isEmpty()) offerUndo(localized("historyCleared"), removed);
}

void HistoryTableViewController::offerUndo(const QString& text, const StoredCalculations& removed) {
  const auto undo = [page = QPointer(this), &store = store_, &notifications = notifications_, removed] {
    const auto row = static_cast<int>(store.restoreCalculations(removed));
    if (page && removed.size() == 1) page->showRestored(row);
    notifications.post(CalcManager::didRestoreCalculations);
  };
  ViewManager::showToast(text, {localized("Undo"), undo});
}

void HistoryTableViewController::showRestored(int row) {
  if (isSearching()) return;
  search_.forget();
  table_.insert(row, store_.calculation(row).calculatedAt);
  emit rowRestored(row);
}

}  // namespace tavi
