#pragma once

#include <QAbstractListModel>
#include <vector>

#include "solution/solution_table_data.h"

namespace tavi {

/// The rows of all sections of the solution table as one list for QML, each by its section, its row there and
/// its kind. The controller fills a cell when it comes into view.
class SolutionTable : public QAbstractListModel {
  Q_OBJECT

 public:
  /// Makes all rows anew.
  void reload(const SolutionTableData& data);

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QHash<int, QByteArray> roleNames() const override;

 private:
  enum Role { Section = Qt::UserRole, Row, Kind };
  struct Entry {
    int section;
    int row;
    SolutionTableData::RowKind kind;
  };

  std::vector<Entry> entries_;
};

}  // namespace tavi
