#include "solution/rows/solution_table_data.h"

#include <QQuickWindow>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include "number/fatal_stop.h"
#include "solution/solution_table.h"

namespace tavi {
namespace {

ChartRow chartRow(double frameRatio) {
  auto chart = std::make_shared<LineChartData>();
  chart->frameRatio = frameRatio;
  return {std::move(chart)};
}

SolutionTableData table(std::size_t steps, const std::vector<double>& frameRatios, bool hasVideos) {
  SolutionTableData data;
  data.solutionSteps.assign(steps, {.title = "Step", .latexString = "1", .messageString = std::nullopt});
  for (const double ratio : frameRatios) data.chartSteps.push_back(chartRow(ratio));
  if (hasVideos) data.videoUrlStrings = {"https://example.org/watch"};
  data.rowHeight = 100;
  return data;
}

TEST(SolutionTableDataTest, HasASectionForStepsChartsAndVideosAsTheyAreThere) {
  struct Case {
    const char* name;
    SolutionTableData data;
    std::vector<int> rows;
    std::vector<std::string> kinds;
  };
  QQuickWindow window;
  window.resize(412, 700);
  const Case cases[] = {
      {"nothing solved", table(0, {}, false), {0}, {}},
      {"videos without a solution", table(0, {}, true), {0}, {}},
      {"steps", table(2, {}, false), {2}, {"step", "step"}},
      {"steps and videos", table(1, {}, true), {1, 1}, {"step", "video"}},
      {"steps and charts", table(1, {2, 1}, false), {1, 2}, {"step", "chart", "chart"}},
      {"all", table(1, {2}, true), {1, 1, 1}, {"step", "chart", "video"}},
      // The last section counts as that of the videos although it was counted for the charts.
      {"charts and videos without steps", table(0, {2, 1}, true), {0, 1}, {"video"}}};
  for (const auto& [name, data, rows, kinds] : cases) {
    ASSERT_EQ(data.numberOfSections(), static_cast<int>(rows.size())) << name;
    for (std::size_t section = 0; section < rows.size(); ++section)
      EXPECT_EQ(data.numberOfRows(static_cast<int>(section)), rows[section]) << name << section;
    std::vector<std::string> found;
    for (const SolutionRow& row : data.rows()) found.emplace_back(kindOf(row));
    EXPECT_EQ(found, kinds) << name;
  }
}

TEST(SolutionTableDataTest, RowsAreAsHighAsTheirKindSays) {
  QQuickWindow window;
  window.resize(412, 700);
  const double ofVideos = videoRowHeight();
  EXPECT_GT(ofVideos, 0);

  SolutionTableData data = table(3, {2, 0.5}, true);
  data.configuredRowHeight = SolutionTableData::RowHeights{{1, 240}, {7, 300}};
  struct Case {
    int section;
    int row;
    double height;
  };
  for (const auto& [section, row, height] :
       {Case{0, 0, 100}, Case{0, 1, 240}, Case{1, 0, 200}, Case{1, 1, 800}, Case{2, 0, ofVideos}})
    EXPECT_EQ(data.heightForRow(section, row).at(400), height) << section << ' ' << row;

  data.chartSteps.clear();
  EXPECT_EQ(data.heightForRow(1, 0).at(400), ofVideos) << "the videos, not a chart";
}

TEST(SolutionTableDataTest, StopsAtRowsThatCannotBe) {
  SolutionTableData data = table(1, {2}, false);
  EXPECT_THROW(data.rowAt(0, 1), FatalStop);
  EXPECT_THROW(data.rowAt(1, 1), FatalStop);
  data.chartSteps = {{}};
  EXPECT_THROW(data.heightForRow(1, 0), FatalStop);
  data.solutionSteps = SolutionSteps(1);
  EXPECT_THROW(data.rowAt(0, 0), FatalStop);
}

TEST(SolutionTableDataTest, TheStepsAreOneCard) {
  const std::vector<SolutionRow> rows = table(3, {2}, false).rows();
  const bool places[][2] = {{true, false}, {false, false}, {false, true}};
  for (std::size_t row = 0; row < 3; ++row) {
    const auto& step = std::get<SolutionStepTableViewCell>(rows[row].content);
    EXPECT_EQ(step.isFirst, places[row][0]) << row;
    EXPECT_EQ(step.isLast, places[row][1]) << row << ": charts are not of the card";
  }
}

TEST(SolutionTableTest, AnUpdateLeavesTheRowsAsTheyAreThatAreStillTheSame) {
  QQuickWindow window;
  window.resize(412, 700);
  SolutionTable model;
  model.reset(table(3, {2}, true).rows());
  QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
  QSignalSpy removed(&model, &QAbstractItemModel::rowsRemoved);
  model.update(std::vector(model.rows()));
  EXPECT_EQ(inserted.count() + removed.count(), 0);
  std::vector<SolutionRow> rows = model.rows();
  rows.pop_back();
  rows.push_back(rows[0]);
  model.update(rows);
  EXPECT_EQ(model.rows(), rows);
  EXPECT_EQ(removed.value(0).value(1).toInt(), 4);
  EXPECT_EQ(inserted.value(0).value(1).toInt(), 4);
  model.update({});
  EXPECT_EQ(model.rowCount(), 0);
}

TEST(ChartDataTest, AQuadrantIsReadFromItsNumeral) {
  for (const Quadrant quadrant : {Quadrant::first, Quadrant::second, Quadrant::third, Quadrant::fourth})
    EXPECT_EQ(quadrantFromRawValue(rawValue(quadrant)), quadrant);
  EXPECT_EQ(quadrantFromRawValue("IV"), Quadrant::fourth);
  for (const char* text : {"V", "", "i", "II "}) EXPECT_EQ(quadrantFromRawValue(text), std::nullopt) << text;
}

TEST(ChartDataTest, AUnitCircleIsTwiceAsWideAsHigh) {
  EXPECT_EQ(UnitCircleChartData(0, 0, 0, 0, Quadrant::first).frameRatio, 2);
}

}  // namespace
}  // namespace tavi
