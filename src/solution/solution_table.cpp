#include "solution/solution_table.h"

#include "number/fatal_stop.h"

namespace tavi {

void SolutionTable::reload(const SolutionTableData& data) {
  beginResetModel();
  entries_.clear();
  for (int section = 0; section < data.numberOfSections(); ++section)
    for (int row = 0; row < data.numberOfRows(section); ++row)
      entries_.push_back({section, row, data.kindOfRows(section)});
  endResetModel();
}

int SolutionTable::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(entries_.size());
}

QVariant SolutionTable::data(const QModelIndex& index, int role) const {
  const Entry& entry = elementAt(entries_, static_cast<std::size_t>(index.row()));
  switch (role) {
    case Section:
      return entry.section;
    case Row:
      return entry.row;
    case Kind:
      return static_cast<int>(entry.kind);
    default:
      return {};
  }
}

QHash<int, QByteArray> SolutionTable::roleNames() const {
  return {{Section, "section"}, {Row, "row"}, {Kind, "kind"}};
}

}  // namespace tavi
