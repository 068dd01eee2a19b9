#pragma once

#include <QAbstractListModel>

namespace tavi {

/// The rows of a table as a list for QML. It knows their number only: the table's controller fills each cell
/// when it comes into view.
class TableRows : public QAbstractListModel {
  Q_OBJECT

 public:
  /// Makes all rows anew.
  void reload(int rows);

  /// Puts one row in, takes one away or moves it to where it shall stand afterwards. The cells of the others
  /// stay as they are. A row outside the table is a fatal stop.
  void insert(int row);
  void remove(int row);
  void move(int from, int to);

  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows_; }
  QVariant data(const QModelIndex&, int) const override { return {}; }

 private:
  void requireRow(int row) const;

  int rows_ = 0;
};

}  // namespace tavi
