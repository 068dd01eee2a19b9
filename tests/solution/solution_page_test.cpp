// The solution page as it is laid out and as assistive technology is told of it.
#include <QAccessible>

#include "solution/chart_table_view_cell.h"
#include "solution/solution_stage.h"

namespace tavi {
namespace {

class SolutionPageTest : public SolutionStage {};

TEST_F(SolutionPageTest, ARowGrowsWhereItsFormulaWouldBeCut) {
  std::string tower = "1";
  for (int i = 0; i < 6; ++i) tower = "\\frac{1}{" + tower + "}";
  show({formulaStep("Result", tower)});
  const auto* row = cells().at(0);
  const auto* label = row->findChild<QQuickItem*>("formula");
  ASSERT_TRUE(label);
  EXPECT_GT(row->height(), 100);
  EXPECT_EQ(label->height(), label->implicitHeight());
  const QRectF placed = label->mapRectToItem(row, QRectF(0, 0, label->width(), label->height()));
  EXPECT_GE(placed.top(), 12);
  EXPECT_LE(placed.bottom(), row->height());
}

TEST_F(SolutionPageTest, AWideFormulaScrollsSidewaysByKeyToItsEnd) {
  std::string copies;
  for (int i = 0; i < 60; ++i) copies += "\\left( 12 \\right) ";
  show({formulaStep("Result", copies)});
  auto* scroll = cells().at(0)->findChild<QQuickItem*>("formulaScroll");
  ASSERT_TRUE(scroll);
  const double hidden = scroll->property("contentWidth").toDouble() - scroll->width();
  ASSERT_GT(hidden, 1000);
  scroll->forceActiveFocus();
  for (double way = 0; way < hidden + 48; way += 48) QTest::keyClick(&window, Qt::Key_Right);
  EXPECT_EQ(scroll->property("contentX").toDouble(), hidden);
}

TEST_F(SolutionPageTest, MakesOnlyTheRowsThatCanBeSeen) {
  show(SolutionSteps(1000, formulaStep("", "=\\frac{1}{2}")));
  EXPECT_EQ(solution->table()->rowCount(), 1000);
  EXPECT_FALSE(cells().empty());
  EXPECT_LT(cells().size(), 20U);
}

TEST_F(SolutionPageTest, ANewSolutionBeginsAtItsTop) {
  show(SolutionSteps(50, formulaStep("", "=1")));
  table().setProperty("contentY", 3000);
  tabs->select(0);
  show(SolutionSteps(50, formulaStep("", "=2")));
  EXPECT_LE(table().property("contentY").toDouble(), 0);
}

TEST_F(SolutionPageTest, AChartIsAsHighAsItsRatioSaysAndStartsAfterHalfASecond) {
  auto chart = std::make_shared<LineChartData>();
  chart->frameRatio = 2;
  show({formulaStep("Result", "1")}, {{chart}});
  ASSERT_EQ(cells<ChartTableViewCell>().size(), 1U);
  auto* cell = cells<ChartTableViewCell>().at(0);
  EXPECT_EQ(cell->height(), 206);
  EXPECT_GE(cell->mapToScene({}).y(), cells().at(0)->mapToScene({}).y() + 100);
  int starts = 0;
  QObject::connect(cell, &ChartTableViewCell::chartAnimationStarted, [&starts] { ++starts; });
  QTest::qWait(300);
  EXPECT_EQ(starts, 0);
  EXPECT_TRUE(QTest::qWaitFor([&starts] { return starts == 1; }, 1000));
}

TEST_F(SolutionPageTest, ARowIsReadAsOneThing) {
  show({formulaStep("Step 1", "\\frac{3}{4}"),
        {.title = "Result", .latexString = std::nullopt, .messageString = "No solution"}});
  const char* const expected[] = {"Step 1, 3 over 4", "Result, No solution"};
  const auto rows = cells();
  ASSERT_EQ(rows.size(), std::size(expected));
  for (std::size_t row = 0; row < rows.size(); ++row) {
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(rows[row]);
    ASSERT_TRUE(interface);
    EXPECT_EQ(interface->role(), QAccessible::StaticText);
    EXPECT_EQ(interface->text(QAccessible::Name), QLatin1String(expected[row]));
    EXPECT_EQ(interface->childCount(), 0) << "title and formula are part of the row's name";
  }
}

}  // namespace
}  // namespace tavi
