#include "solution/solution_table.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace tavi {

void SolutionTable::reset(std::vector<SolutionRow> rows) {
  beginResetModel();
  rows_ = std::move(rows);
  endResetModel();
}

void SolutionTable::update(std::vector<SolutionRow> rows) {
  const auto [lastSame, firstNew] = std::ranges::mismatch(rows_, rows);
  const auto same = static_cast<int>(lastSame - rows_.begin());
  if (lastSame != rows_.end()) {
    beginRemoveRows({}, same, static_cast<int>(rows_.size()) - 1);
    rows_.erase(lastSame, rows_.end());
    endRemoveRows();
  }
  if (firstNew != rows.end()) {
    beginInsertRows({}, same, static_cast<int>(rows.size()) - 1);
    rows_.insert(rows_.end(), std::make_move_iterator(firstNew), std::make_move_iterator(rows.end()));
    endInsertRows();
  }
}

int SolutionTable::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant SolutionTable::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  const SolutionRow& row = rows_.at(static_cast<std::size_t>(index.row()));
  switch (role) {
    case kindRole:
      return QString::fromLatin1(kindOf(row));
    case contentRole:
      return std::visit([](const auto& content) { return QVariant::fromValue(content); }, row.content);
    case rowHeightRole:
      return QVariant::fromValue(row.height);
    default:
      return {};
  }
}

QHash<int, QByteArray> SolutionTable::roleNames() const {
  return {{kindRole, "kind"}, {contentRole, "content"}, {rowHeightRole, "rowHeight"}};
}

}  // namespace tavi
