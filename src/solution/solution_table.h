#pragma once

#include <QAbstractListModel>
#include <vector>

#include "solution/rows/solution_row.h"

namespace tavi {

/// The rows of the solution table as a list for QML: each row's kind by name, its content and its height.
class SolutionTable : public QAbstractListModel {
  Q_OBJECT

 public:
  /// Makes all rows anew.
  void reset(std::vector<SolutionRow> rows);

  /// Takes these rows in place of the present ones. Those from the top on that are still the same stay as
  /// they are, wherever they have been scrolled to.
  void update(std::vector<SolutionRow> rows);

  const std::vector<SolutionRow>& rows() const { return rows_; }

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QHash<int, QByteArray> roleNames() const override;

 private:
  enum Role { kindRole = Qt::UserRole, contentRole, rowHeightRole };

  std::vector<SolutionRow> rows_;
};

}  // namespace tavi
