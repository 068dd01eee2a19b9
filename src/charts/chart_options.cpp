#include "charts/chart_options.h"

#include <cmath>
#include <utility>

#include "number/fatal_stop.h"
#include "number/text.h"

namespace tavi {

namespace {

constexpr std::size_t mostTicks = 1000;

// Half of π as it was typed, in single precision.
constexpr double piTickInterval = 1.5705F;

// From `minimum` through `maximum`, or down to it by a negative step.
std::vector<double> stride(double minimum, double maximum, double step) {
  std::vector<double> positions;
  for (double position = minimum; step > 0 ? position <= maximum : position >= maximum;
       position = std::fma(static_cast<double>(positions.size()), step, minimum)) {
    if (positions.size() == mostTicks) fatalStop("an axis with ticks without end");
    positions.push_back(position);
  }
  return positions;
}

ChartAxis plainAxis(std::string title, std::optional<double> minimum, std::optional<double> maximum) {
  if (!minimum || !maximum) return {.title = std::move(title), .hasAutomaticMinorTicks = true};
  if (!std::isfinite(*minimum) || !std::isfinite(*maximum)) fatalStop("an axis without end");
  const double step = *maximum * 0.25;
  if (step == 0) fatalStop("an axis whose ticks have no distance");
  return {.title = std::move(title),
          .minimum = minimum,
          .maximum = maximum,
          .tickPositions = stride(*minimum, *maximum, step),
          .minorTickInterval = static_cast<float>(step / 5)};
}

}  // namespace

ChartAxis xAxis(std::string title, std::optional<double> minimum, std::optional<double> maximum,
                bool isTrigonometric) {
  if (!isTrigonometric) return plainAxis(std::move(title), minimum, maximum);
  return {.title = std::move(title), .tickInterval = piTickInterval, .labels = TickLabels::piMultiples};
}

ChartAxis yAxis(std::string title, std::optional<double> minimum, std::optional<double> maximum) {
  return plainAxis(std::move(title), minimum, maximum);
}

ChartTooltip tooltip(std::string_view xTitle, std::string_view yTitle) {
  return {.header = joined({xTitle, ": {point.key}<br/>"}), .point = joined({yTitle, ": {point.y}<br/>"})};
}

ChartOptions chartOptions(ChartType type, std::string title, std::vector<ChartSeries> series, ChartAxis x,
                          ChartAxis y) {
  ChartTooltip words = tooltip(x.title, y.title);
  return {.type = type,
          .title = std::move(title),
          .series = std::move(series),
          .xAxis = std::move(x),
          .yAxis = std::move(y),
          .tooltip = std::move(words)};
}

}  // namespace tavi
