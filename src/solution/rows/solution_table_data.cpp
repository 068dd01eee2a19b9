#include "solution/rows/solution_table_data.h"

#include "number/fatal_stop.h"

namespace tavi {

namespace {

constexpr int stepSection = 0;
constexpr int chartSection = 1;

const ChartRow& chartRowAt(const ChartRows& rows, int row) {
  return elementAt(rows, static_cast<std::size_t>(row));
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

RowHeight SolutionTableData::heightForRow(int section, int row) const {
  if (section == stepSection && configuredRowHeight && configuredRowHeight->contains(row))
    return {.fixed = configuredRowHeight->value(row)};
  if (isVideoSection(section)) return {.fixed = videoRowHeight()};
  if (section != chartSection) return {.fixed = rowHeight};
  return {.ratio = elementAt(chartRowAt(chartSteps, row), 0)->frameRatio};
}

SolutionRow SolutionTableData::rowAt(int section, int row) const {
  const RowHeight height = heightForRow(section, row);
  if (section == stepSection) return {stepRow(row), height};
  if (isVideoSection(section)) return {VideoCollectionTableViewCell{videoUrlStrings}, height};
  return {ChartTableViewCell{chartRowAt(chartSteps, row)}, height};
}

std::vector<SolutionRow> SolutionTableData::rows() const {
  std::vector<SolutionRow> rows;
  for (int section = 0; section < numberOfSections(); ++section)
    for (int row = 0; row < numberOfRows(section); ++row) rows.push_back(rowAt(section, row));
  return rows;
}

bool SolutionTableData::isVideoSection(int section) const {
  return section == numberOfSections() - 1 && !videoUrlStrings.isEmpty();
}

SolutionStepTableViewCell SolutionTableData::stepRow(int row) const {
  const SolutionStep& step = elementAt(solutionSteps, static_cast<std::size_t>(row));
  SolutionStepTableViewCell cell;
  cell.isFirst = row == 0;
  cell.isLast = row == numberOfRows(stepSection) - 1;
  cell.setStepTitle(QString::fromStdString(required(step.title, "a step has no title")));
  cell.setStepContent(step);
  return cell;
}

}  // namespace tavi
