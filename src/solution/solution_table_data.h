#pragma once

#include <QHash>
#include <QObject>
#include <QStringList>
#include <optional>

#include "charts/chart_data.h"
#include "output/string_output.h"
#include "solution/table_view_cell.h"

namespace tavi {

/// What the solution table shows and by which rules. Section 0 has the steps, the next the charts if there
/// are any, the last the videos if there are any and there is a solution.
struct SolutionTableData {
  Q_GADGET

 public:
  enum class RowKind { Step, Chart, Video };
  Q_ENUM(RowKind)

  /// Heights of single rows of section 0 by row index, in device-independent pixels.
  using RowHeights = QHash<int, double>;

  SolutionSteps solutionSteps;
  ChartRows chartSteps;
  QStringList videoUrlStrings;
  std::optional<RowHeights> configuredRowHeight;
  double rowHeight = 0;

  int numberOfSections() const;
  int numberOfRows(int section) const;
  RowKind kindOfRows(int section) const;

  /// A row of charts is as high as the width of the view and the ratio of its first chart say; without a
  /// chart it is a fatal stop.
  double heightForRow(int section, int row, double viewWidth) const;

  /// Fills a cell of the kind of those rows. A step without a title and a row that is not there are fatal
  /// stops.
  void configureCell(TableViewCell& cell, int section, int row) const;

 private:
  bool isVideoSection(int section) const;
};

}  // namespace tavi
