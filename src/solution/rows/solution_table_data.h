#pragma once

#include <QHash>
#include <QStringList>
#include <optional>
#include <vector>

#include "charts/chart_data.h"
#include "output/string_output.h"
#include "solution/rows/solution_row.h"

namespace tavi {

/// What the solution table shows, in sections: section 0 has the steps, the next the charts if there are any,
/// the last the videos if there are any and there is a solution.
struct SolutionTableData {
  /// Heights of single rows of section 0 by row index, in device-independent pixels.
  using RowHeights = QHash<int, double>;

  SolutionSteps solutionSteps;
  ChartRows chartSteps;
  QStringList videoUrlStrings;
  std::optional<RowHeights> configuredRowHeight;
  double rowHeight = 0;

  int numberOfSections() const;
  int numberOfRows(int section) const;

  /// A row of charts is as high as the width of the view and the ratio of its first chart say; without a
  /// chart it is a fatal stop.
  RowHeight heightForRow(int section, int row) const;

  /// A row that is not there and a step without a title are fatal stops.
  SolutionRow rowAt(int section, int row) const;

  /// The rows of all sections.
  std::vector<SolutionRow> rows() const;

 private:
  bool isVideoSection(int section) const;
  SolutionStepTableViewCell stepRow(int row) const;
};

}  // namespace tavi
