#include "solution/solution_table_data.h"

#include "number/fatal_stop.h"
#include "solution/chart_table_view_cell.h"
#include "solution/solution_step_cell.h"
#include "solution/video_collection_table_view_cell.h"

namespace tavi {

namespace {

constexpr int stepSection = 0;
constexpr int chartSection = 1;

const ChartRow& chartRowAt(const ChartRows& rows, int row) {
  return elementAt(rows, static_cast<std::size_t>(row));
}

template <typename Cell>
Cell& as(TableViewCell& cell) {
  auto* typed = qobject_cast<Cell*>(&cell);
  if (!typed) fatalStop("a cell of another kind than its row");
  return *typed;
}

}  // namespace

int SolutionTableData::numberOfSections() const {
  const int charted = chartSteps.empty() ? 1 : 2;
  return !solutionSteps.empty() && !videoUrlStrings.isEmpty() ? charted + 1 : charted;
}

int SolutionTableData::numberOfRows(int section) const {
  if (section == stepSection) return static_cast<int>(solutionSteps.size());
  return isVideoSection(section) ? 1 : static_cast<int>(chartSteps.size());
}

SolutionTableData::RowKind SolutionTableData::kindOfRows(int section) const {
  if (section == stepSection) return RowKind::Step;
  return isVideoSection(section) ? RowKind::Video : RowKind::Chart;
}

double SolutionTableData::heightForRow(int section, int row, double viewWidth) const {
  if (section == stepSection && configuredRowHeight && configuredRowHeight->contains(row))
    return configuredRowHeight->value(row);
  if (isVideoSection(section)) return videoRowHeight();
  if (section != chartSection) return rowHeight;
  return 1 / elementAt(chartRowAt(chartSteps, row), 0)->frameRatio * viewWidth;
}

void SolutionTableData::configureCell(TableViewCell& cell, int section, int row) const {
  switch (kindOfRows(section)) {
    case RowKind::Step: {
      const SolutionStep& step = elementAt(solutionSteps, static_cast<std::size_t>(row));
      auto& stepCell = as<SolutionStepTableViewCell>(cell);
      stepCell.setPlace(row == 0, row == numberOfRows(section) - 1);
      stepCell.setStepTitle(QString::fromStdString(required(step.title, "a step has no title")));
      stepCell.setStepContent(step);
      break;
    }
    case RowKind::Video:
      as<VideoCollectionTableViewCell>(cell).videoUrlStringArray = videoUrlStrings;
      break;
    case RowKind::Chart:
      cell.setBackgroundColor(Qt::transparent);
      as<ChartTableViewCell>(cell).configure(chartRowAt(chartSteps, row));
      break;
  }
}

bool SolutionTableData::isVideoSection(int section) const {
  return section == numberOfSections() - 1 && !videoUrlStrings.isEmpty();
}

}  // namespace tavi
