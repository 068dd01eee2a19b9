#include "solution/solution_table_data.h"

#include <QQuickWindow>

#include <gtest/gtest.h>

#include "number/fatal_stop.h"
#include "solution/chart_table_view_cell.h"
#include "solution/solution_step_cell.h"
#include "solution/solution_table.h"
#include "solution/video_collection_table_view_cell.h"

namespace tavi {
namespace {

using Kind = SolutionTableData::RowKind;

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
    std::vector<Kind> kinds;
  };
  const Case cases[] = {
      {"nothing solved", table(0, {}, false), {0}, {Kind::Step}},
      {"videos without a solution", table(0, {}, true), {0}, {Kind::Step}},
      {"steps", table(3, {}, false), {3}, {Kind::Step}},
      {"steps and videos", table(3, {}, true), {3, 1}, {Kind::Step, Kind::Video}},
      {"steps and charts", table(3, {2, 1}, false), {3, 2}, {Kind::Step, Kind::Chart}},
      {"all", table(3, {2}, true), {3, 1, 1}, {Kind::Step, Kind::Chart, Kind::Video}},
      // The last section counts as that of the videos although it was counted for the charts.
      {"charts and videos without steps", table(0, {2, 1}, true), {0, 1}, {Kind::Step, Kind::Video}}};
  for (const auto& [name, data, rows, kinds] : cases) {
    ASSERT_EQ(data.numberOfSections(), static_cast<int>(rows.size())) << name;
    for (std::size_t section = 0; section < rows.size(); ++section) {
      EXPECT_EQ(data.numberOfRows(static_cast<int>(section)), rows[section]) << name << section;
      EXPECT_EQ(data.kindOfRows(static_cast<int>(section)), kinds[section]) << name << section;
    }
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
    EXPECT_EQ(data.heightForRow(section, row, 400), height) << section << ' ' << row;

  data.chartSteps.clear();
  EXPECT_EQ(data.heightForRow(1, 0, 400), ofVideos) << "the videos, not a chart";
}

TEST(SolutionTableDataTest, StopsAtRowsThatCannotBe) {
  SolutionTableData data = table(1, {2}, false);
  SolutionStepTableViewCell stepCell;
  ChartTableViewCell chartCell;
  EXPECT_THROW(data.configureCell(stepCell, 0, 1), FatalStop);
  EXPECT_THROW(data.configureCell(chartCell, 1, 1), FatalStop);
  EXPECT_THROW(data.heightForRow(1, 1, 400), FatalStop);
  data.chartSteps = {{}};
  EXPECT_THROW(data.heightForRow(1, 0, 400), FatalStop);
  data.solutionSteps = SolutionSteps(1);
  EXPECT_THROW(data.configureCell(stepCell, 0, 0), FatalStop);
}

TEST(SolutionTableDataTest, FillsTheCellOfEachKind) {
  const SolutionTableData data = table(2, {2}, true);
  SolutionStepTableViewCell first;
  data.configureCell(first, 0, 0);
  EXPECT_EQ(first.stepTitle(), "Step");
  EXPECT_TRUE(first.isFirst());
  EXPECT_FALSE(first.isLast()) << "charts and videos are not of the card, but the second step is";

  ChartTableViewCell chart;
  chart.setBackgroundColor(Qt::red);
  data.configureCell(chart, 1, 0);
  EXPECT_EQ(chart.backgroundColor(), QColor(Qt::transparent));
  EXPECT_EQ(chart.charts(), data.chartSteps[0]);

  VideoCollectionTableViewCell videos;
  data.configureCell(videos, 2, 0);
  EXPECT_EQ(videos.videoUrlStringArray, data.videoUrlStrings);
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
