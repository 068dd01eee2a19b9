#include "shell/menu/menu_table.h"

#include <utility>

namespace tavi {

void MenuTable::reload(QList<Row> rows) {
  beginResetModel();
  rows_ = std::move(rows);
  endResetModel();
}

int MenuTable::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant MenuTable::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  const Row& row = rows_[index.row()];
  switch (role) {
    case sectionRole:
      return row.section;
    case rowInSectionRole:
      return row.rowInSection;
    case titleRole:
      return row.title;
    default:
      return {};
  }
}

QHash<int, QByteArray> MenuTable::roleNames() const {
  return {{sectionRole, "section"}, {rowInSectionRole, "rowInSection"}, {titleRole, "title"}};
}

}  // namespace tavi
