#include "solution/solution_table_source.h"

#include "solution/chart_table_view_cell.h"
#include "solution/solution_step_cell.h"
#include "solution/video_collection_table_view_cell.h"

namespace tavi {

namespace {

std::unique_ptr<TableViewCell> makeCell(SolutionTableData::RowKind kind, double viewWidth) {
  switch (kind) {
    case SolutionTableData::RowKind::Chart:
      return std::make_unique<ChartTableViewCell>();
    case SolutionTableData::RowKind::Video:
      return std::make_unique<VideoCollectionTableViewCell>();
    default:
      break;
  }
  auto cell = std::make_unique<SolutionStepTableViewCell>();
  cell->setFormulaSize(SolutionStepTableViewCell::formulaSizeFor(viewWidth));
  return cell;
}

}  // namespace

std::unique_ptr<TableViewCell> SolutionTableSource::cellForRow(int section, int row) const {
  std::unique_ptr<TableViewCell> cell = makeCell(data_.kindOfRows(section), viewWidth_);
  data_.configureCell(*cell, section, row);
  return cell;
}

}  // namespace tavi
