#include "charts/unit_circle_chart.h"

#include <cmath>
#include <limits>
#include <numbers>

#include <gtest/gtest.h>

#include "charts/chart_manager.h"
#include "number/fatal_stop.h"

namespace tavi {
namespace {

UnitCircleChartView circle(double degrees, std::int64_t turns) {
  return UnitCircleChartManager::unitCircleChartView(
      {degrees, degrees * std::numbers::pi / 180, {}, turns, Quadrant::first});
}

// "α γ k (x|y)", a dash for what shows nothing.
std::string text(const UnitCircleLabels& labels) {
  const auto number = [](const auto& value) {
    return value ? std::to_string(std::lround(100 * static_cast<double>(*value))) : "-";
  };
  return labels.alpha.value_or("-") + " " + labels.gamma.value_or("-") + " " +
         (labels.fullCircles ? std::to_string(*labels.fullCircles) : "-") + " (" + number(labels.pX) + "|" +
         number(labels.pY) + ")";
}

TEST(UnitCircle, TurnsOneTurnAfterTheOther) {
  struct Case {
    double degrees;
    std::int64_t fullCircles;
    std::size_t turns;
    std::string labels;  // coordinates in hundredths
  };
  const Case cases[] = {
      {450, 1, 2, "450° 90° 1 (0|100)"},
      {360, 1, 1, "360° 360° 1 (100|0)"},
      {0, 0, 0, "- - 0 (-|-)"},
      {90, 0, 1, "90° 90° 0 (0|100)"},
      {-90, 0, 1, "-90° -90° 0 (0|-100)"},
      {-810, 2, 3, "-810° -90° -2 (0|-100)"},
      {810, -2, 3, "810° 90° 2 (0|100)"},
      {-270, 0, 1, "-270° -270° 0 (0|100)"},
      {0.4, 0, 1, "0° 0° 0 (100|1)"},
      {-0.4, 0, 1, "0° 0° 0 (100|-1)"},
      {45, 0, 1, "45° 45° 0 (71|71)"},
  };
  for (const auto& [degrees, fullCircles, turns, labels] : cases) {
    const UnitCircleChartView view = circle(degrees, fullCircles);
    EXPECT_EQ(view.turns.size(), turns) << degrees;
    EXPECT_EQ(text(view.labels), labels);
    EXPECT_TRUE(view.isFinished);
    double radians = 0;
    for (const UnitCircleTurn& turn : view.turns) radians += turn.radians;
    EXPECT_NEAR(radians, view.b, 1e-9) << degrees;
  }
}

TEST(UnitCircle, CountsUpToWhereItStays) {
  const UnitCircleChartView view = circle(-450, 1);  // two turns and the end: three seconds
  const auto labelsAt = [&](double seconds) { return text(unitCircleState(view, seconds / 3).labels); };
  EXPECT_EQ(labelsAt(0), "-0° -0° 0 (100|0)");
  EXPECT_EQ(labelsAt(0.26), "-90° -90° 0 (0|-100)");
  EXPECT_EQ(labelsAt(0.29), "-90° -90° 0 (0|-100)") << "in twenty steps";
  EXPECT_EQ(labelsAt(1.51), "-405° -45° -1 (-71|71)") << "coordinates count from 0 to -450";
  EXPECT_EQ(labelsAt(2.2), text(view.labels));
  EXPECT_EQ(labelsAt(3), text(view.labels));

  EXPECT_NEAR(unitCircleState(view, 0.25 / 3).quadrantsAlpha, 0.5, 1e-9);
  EXPECT_NEAR(unitCircleState(view, 1.75 / 3).drawnOfTurn, 0.75, 1e-9);
  EXPECT_NEAR(unitCircleState(view, 2.5 / 3).drawnProjections, 0.5, 1e-9);
  for (const auto& [seconds, isRunning] :
       {std::pair{0.0, false}, {0.01, true}, {1.99, true}, {2.01, false}, {3.0, false}})
    EXPECT_EQ(unitCircleState(view, seconds / 3).isRunning, isRunning) << seconds;
  EXPECT_EQ(unitCircleState(view, 1).quadrantAlpha, 1);
}

TEST(UnitCircle, StaysAsItIsWithoutAnAngle) {
  const UnitCircleChartView view =
      UnitCircleChartManager::unitCircleChartView({90, {}, {}, 0, Quadrant::first});
  EXPECT_FALSE(view.isFinished);
  EXPECT_EQ(duration(view), 0);
  EXPECT_EQ(text(unitCircleState(view, 1).labels), "- - - (-|-)");
}

TEST(UnitCircle, StopsAtTurnsWithoutEnd) {
  EXPECT_THROW(circle(1e19, 1), FatalStop);
  EXPECT_THROW(circle(std::numeric_limits<double>::infinity(), 1), FatalStop);
  EXPECT_THROW(circle(90, std::numeric_limits<std::int64_t>::max()), FatalStop);
  EXPECT_THROW(circle(90, std::numeric_limits<std::int64_t>::min()), FatalStop);
}

}  // namespace
}  // namespace tavi
