#include "charts/unit_circle_chart.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

#include "charts/chart_manager.h"
#include "number/fatal_stop.h"
#include "number/math_operation.h"

namespace tavi {

namespace {

constexpr std::int64_t mostTurns = 100000;
constexpr double countSteps = 20;  // of each turn's labels
constexpr double fadeSeconds = 0.5;

std::string degreesText(double degrees) {
  return std::to_string(truncatedToInt64(std::round(degrees))) + "°";
}

// From `start` to `end`, of which the sign is the end's.
std::string countedDegrees(double start, double end, double part) {
  const double size = part * (std::abs(end) - std::abs(start)) + std::abs(start);
  return (end < 0 ? "-" : "") + degreesText(size);
}

// Exact where the arrow stands on an axis.
double sineOfDegrees(double degrees) {
  if (std::fmod(degrees, 180) == 0) return 0;
  if (std::fmod(degrees - 90, 360) == 0) return 1;
  if (std::fmod(degrees - 270, 360) == 0) return -1;
  return std::sin(degrees * std::numbers::pi / 180);
}

double cosineOfDegrees(double degrees) {
  if (std::fmod(degrees + 90, 180) == 0) return 0;
  if (std::fmod(degrees, 360) == 0) return 1;
  if (std::fmod(degrees - 180, 360) == 0) return -1;
  return std::cos(degrees * std::numbers::pi / 180);
}

void setCoordinates(UnitCircleLabels& labels, double degrees) {
  labels.pX = TaviMathOperation::rounded(2, cosineOfDegrees(degrees));
  labels.pY = TaviMathOperation::rounded(2, sineOfDegrees(degrees));
}

}  // namespace

UnitCircleChartView UnitCircleChartManager::unitCircleChartView(const UnitCircleChartData& data) {
  UnitCircleChartView view;
  if (!data.fullCircles || !data.alpha || !data.b) return view;
  if (*data.fullCircles < -mostTurns || *data.fullCircles > mostTurns) fatalStop("turns without end");
  const std::int64_t fullCircles = std::abs(*data.fullCircles);
  const int sign = *data.b < 0 ? -1 : 1;
  for (std::int64_t index = 0; index <= fullCircles; ++index) {
    const auto turn = static_cast<double>(index);
    const bool isFull = index < fullCircles;
    const double gamma = isFull ? 360 : std::abs(*data.alpha) - turn * 360;
    const double total = isFull ? turn * 360 + 360 : std::abs(*data.alpha);
    const double radians = isFull ? 2 * std::numbers::pi : std::abs(*data.b) - 2 * turn * std::numbers::pi;
    view.labels.fullCircles = sign * index;
    if (gamma == 0) break;
    view.turns.push_back({.number = sign * index,
                          .degreesFrom = sign * turn * 360,
                          .degreesTo = sign * total,
                          .gamma = sign * gamma,
                          .radians = sign * radians,
                          .hue = 0.18 * turn,
                          .brightness = 1 - 0.02 * turn});
  }
  if (!view.turns.empty()) {
    const UnitCircleTurn& last = view.turns.back();
    view.labels.alpha = degreesText(last.degreesTo);
    view.labels.gamma = degreesText(last.gamma);
    setCoordinates(view.labels, last.degreesTo);
  }
  view.isFinished = true;
  view.b = *data.b;
  view.quadrant = data.quadrant;
  return view;
}

double duration(const UnitCircleChartView& view) {
  return view.isFinished ? static_cast<double>(view.turns.size()) + 1 : 0;
}

UnitCircleState unitCircleState(const UnitCircleChartView& view, double progress) {
  if (!view.isFinished) return {.labels = {}, .quadrantsAlpha = 1};
  UnitCircleState state{.labels = view.labels,
                        .quadrantAlpha = 1,
                        .turns = view.turns.size(),
                        .drawnOfTurn = 1,
                        .drawnProjections = 1};
  if (progress >= 1) return state;
  const double seconds = std::max(0.0, progress) * duration(view);
  state.quadrantsAlpha = std::max(0.0, 1 - seconds / fadeSeconds);
  const auto ended = static_cast<std::size_t>(seconds);
  if (ended >= view.turns.size()) {
    state.quadrantAlpha = state.drawnProjections = seconds - static_cast<double>(view.turns.size());
    return state;
  }
  const UnitCircleTurn& turn = view.turns[ended];
  const double part = seconds - static_cast<double>(ended);
  const double counted = std::floor(part * countSteps) / countSteps;
  state.isRunning = progress > 0;
  state.turns = ended + 1;
  state.drawnOfTurn = part;
  state.quadrantAlpha = state.drawnProjections = 0;
  state.labels = {.fullCircles = turn.number,
                  .alpha = countedDegrees(turn.degreesFrom, turn.degreesTo, counted),
                  .gamma = countedDegrees(0, turn.gamma, counted),
                  .pX = {},
                  .pY = {}};
  setCoordinates(state.labels, turn.degreesTo * counted);
  return state;
}

}  // namespace tavi
