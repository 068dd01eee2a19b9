#include "shell/history/table_rows.h"

#include "number/fatal_stop.h"

namespace tavi {

void TableRows::reload(int rows) {
  beginResetModel();
  rows_ = rows;
  endResetModel();
}

void TableRows::insert(int row) {
  if (row != rows_) requireRow(row);
  beginInsertRows({}, row, row);
  ++rows_;
  endInsertRows();
}

void TableRows::remove(int row) {
  requireRow(row);
  beginRemoveRows({}, row, row);
  --rows_;
  endRemoveRows();
}

void TableRows::move(int from, int to) {
  requireRow(from);
  requireRow(to);
  if (from == to) return;
  // The model's own counting names the row before which the moved one is put in.
  beginMoveRows({}, from, from, {}, to > from ? to + 1 : to);
  endMoveRows();
}

void TableRows::requireRow(int row) const {
  if (row < 0 || row >= rows_) fatalStop("no such row in the table");
}

}  // namespace tavi
