#pragma once

#include <QAbstractListModel>

namespace tavi {

/// The rows of the solution table as a list for QML. It knows their number only: the controller fills each
/// cell when it comes into view.
class SolutionTable : public QAbstractListModel {
  Q_OBJECT

 public:
  /// Makes all rows anew.
  void reload(int rows);

  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows_; }
  QVariant data(const QModelIndex&, int) const override { return {}; }

 private:
  int rows_ = 0;
};

inline void SolutionTable::reload(int rows) {
  beginResetModel();
  rows_ = rows;
  endResetModel();
}

}  // namespace tavi
