#pragma once

#include <QTimer>
#include <functional>
#include <memory>

#include "platform/notification_center.h"
#include "shell/calc_manager.h"
#include "shell/frame/toolbar.h"
#include "shell/frame/view_controller.h"
#include "shell/history/history_search.h"
#include "shell/history/history_table_view_cell.h"
#include "shell/history/history_transfer.h"
#include "shell/history/table_rows.h"

namespace tavi {

/// What the user has calculated, newest first: to be searched, reopened, copied, deleted, reordered or
/// cleared. It works on the store directly and keeps no list of its own; a new one is made for each visit.
/// While it is searched, its rows are what was found.
///
/// Moving a row over others exchanges the two end positions in the store, while the table shifts the rows
/// between. Until the next visit the two may differ in order, and every operation goes by the row number.
class HistoryTableViewController : public tavi::ViewController {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the application")
  Q_PROPERTY(QAbstractItemModel* table READ table CONSTANT)
  Q_PROPERTY(bool isEditing READ isEditing NOTIFY isEditingChanged)
  Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchChanged)
  Q_PROPERTY(bool isSearching READ isSearching NOTIFY searchChanged)
  Q_PROPERTY(bool isSearchThrough READ isSearchThrough NOTIFY searchChanged)
  Q_PROPERTY(tavi::HistoryTransfer* transfer READ transfer CONSTANT)

 public:
  enum class EditingStyle { None = 0, Delete = 1, Insert = 2 };
  Q_ENUM(EditingStyle)

  enum class CopyForm { Typed, Latex };
  Q_ENUM(CopyForm)

  /// Makes fresh pages that take the place of everything under the drawer.
  using RootFactory = std::function<std::shared_ptr<ViewController>()>;

  HistoryTableViewController(CalcManager& store, RootFactory makeRoot,
                             NotificationCenter& notifications = NotificationCenter::shared());

  TableRows* table() { return &table_; }
  bool isEditing() const { return isEditing_; }
  HistoryTransfer* transfer() { return &transfer_; }

  /// What is searched for; without a word in it all rows are shown.
  const QString& searchText() const { return searchText_; }
  void setSearchText(const QString& text);
  bool isSearching() const { return search_.isOn(); }
  /// Whether all there is to find is shown. What takes longer is gone through piece by piece.
  bool isSearchThrough() const { return search_.isThrough(); }

  /// Gets ahead of a search that is to come.
  Q_INVOKABLE void prepareSearch() { searching_.start(); }

  // What the table asks and tells. A row outside the history is a fatal stop.
  static int numberOfSectionsInTableView() { return 1; }
  int numberOfRowsInSection(int section) const;

  /// Fills a cell that comes into view.
  Q_INVOKABLE void cellForRow(tavi::HistoryTableViewCell* cell, int row) const;
  Q_INVOKABLE static bool canEditRow(int row);
  /// Not while it is searched.
  Q_INVOKABLE bool canMoveRow(int row) const;

  /// Exchanges the records of the two rows; the table shows the row moved. Nothing while it is searched.
  Q_INVOKABLE void moveRow(int from, int to);

  /// Deletes the row and offers to undo that; any other style does nothing.
  Q_INVOKABLE void commitEditingStyle(tavi::HistoryTableViewController::EditingStyle style, int row);

  /// Puts the task on the clipboard, in LaTeX or as it was typed, which old records may not tell.
  Q_INVOKABLE void copyRow(int row, tavi::HistoryTableViewController::CopyForm form) const;

  /// Picks the record for reopening and, if there is a drawer, opens fresh pages, which take it.
  Q_INVOKABLE void didSelectRow(int row);

  /// Opens fresh pages with whatever they find; nothing without a drawer.
  Q_INVOKABLE void openCalculatePage();

  Q_INVOKABLE void handleEditButton();
  void handleClearAllButton();

  std::shared_ptr<ToolbarButton> editButton;
  std::shared_ptr<ToolbarButton> clearAllButton;

 signals:
  void isEditingChanged();
  void searchChanged();
  /// The cell of the row, if it is in view, is to be filled anew.
  void rowReloaded(int row);
  void rowRestored(int row);

 protected:
  void viewDidLoad() override;
  void applyAppearance() override;
  void viewDidAppear() override;

 private:
  using Handler = void (HistoryTableViewController::*)();

  std::shared_ptr<ToolbarButton> makeButton(const char* title, const char* icon, Handler handler);
  qsizetype indexOf(int row) const;
  QList<QDateTime> moments(qsizetype first) const;
  void reload();
  void search();
  void goOnSearching();
  void clear();
  void offerUndo(const QString& text, const StoredCalculations& removed);
  void showRestored(int row);

  CalcManager& store_;
  NotificationCenter& notifications_;
  RootFactory makeRoot_;
  TableRows table_;
  HistorySearch search_{store_};
  QString searchText_;
  QTimer searching_;
  HistoryTransfer transfer_{*this, store_, notifications_};
  bool isEditing_ = false;
};

}  // namespace tavi
