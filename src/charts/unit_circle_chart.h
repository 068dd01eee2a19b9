#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "charts/chart_data.h"

namespace tavi {

/// A turn of the arrow, which takes a second. Turned clockwise all figures are negative.
struct UnitCircleTurn {
  std::int64_t number = 0;  ///< What the label of the full turns shows.
  double degreesFrom = 0;
  double degreesTo = 0;
  double gamma = 0;    ///< Degrees of this turn alone.
  double radians = 0;  ///< The same in radians: from where the circle begins to where the arc ends.
  double hue = 0;      ///< Of the arc, in turns of the colour wheel.
  double brightness = 0;
};

/// What the labels show; absent: nothing yet.
struct UnitCircleLabels {
  std::optional<std::int64_t> fullCircles;
  std::optional<std::string> alpha;  ///< "450°"
  std::optional<std::string> gamma;
  std::optional<double> pX;
  std::optional<double> pY;
};

struct UnitCircleChartView {
  std::vector<UnitCircleTurn> turns;
  UnitCircleLabels labels;           ///< At the end.
  bool isFinished = false;           ///< Whether it comes to an end: nothing happens to an incomplete angle.
  double b = 0;                      ///< Where the point stands at the end, in radians.
  std::optional<Quadrant> quadrant;  ///< Whose label comes up at the end.
};

/// The chart at some moment.
struct UnitCircleState {
  UnitCircleLabels labels;
  double quadrantsAlpha = 0;    ///< Of the four labels, which go at the start.
  double quadrantAlpha = 0;     ///< Of the label that comes up at the end.
  std::size_t turns = 0;        ///< That have begun,
  double drawnOfTurn = 0;       ///< and how much is drawn of the last of them, from 0 to 1.
  double drawnProjections = 0;  ///< From 0 to 1.
  bool isRunning = false;       ///< While the arrow turns.
};

/// How long the whole animation takes, in seconds: a second for each turn, and one for the end.
double duration(const UnitCircleChartView& view);

/// `progress` from 0 to 1; at 1 it stands as it stays.
UnitCircleState unitCircleState(const UnitCircleChartView& view, double progress);

}  // namespace tavi
