#include <algorithm>
#include <cmath>
#include <numbers>

#include "charts/chart_manager.h"
#include "number/fatal_stop.h"
#include "number/math_operation.h"

namespace tavi {

namespace {

// More points than any screen shows.
constexpr double mostIntervals = 1'000'000;

struct Graph {
  double (*function)(double);
  std::string_view name;
  std::string_view title;
  std::string_view color;
  ChartType type;
  double markerRadius;
  bool isSteep;  // Dots, close by one another, so that nothing joins what a pole parts.
};

double sine(double x) {
  return std::sin(x);
}
double cosine(double x) {
  return std::cos(x);
}
double tangent(double x) {
  return std::tan(x);
}

const Graph& graphOf(TrigonometricType type) {
  static constexpr Graph sin{sine, "sin(x)", "Sin", "#FF0000", ChartType::spline, 0, false};
  static constexpr Graph cos{cosine, "cos(x)", "Cos", "#000CFF", ChartType::spline, 0, false};
  static constexpr Graph tan{tangent, "tan(x)", "Tan", "#00E13A", ChartType::scatter, 1, true};
  switch (type) {
    case TrigonometricType::sin:
      return sin;
    case TrigonometricType::cos:
      return cos;
    case TrigonometricType::tan:
      break;
  }
  return tan;
}

// An even number, so many that a step is not longer than the graph allows.
std::int64_t intervalCount(double length, bool isSteep) {
  const double density = isSteep ? length / std::numbers::pi * 200 : 32;
  const double longestStep = std::numbers::pi / density;
  if (longestStep >= std::abs(length) * 0.25) return 4;
  const double steps = std::abs(length) / longestStep;
  if (!(steps > 0 && steps <= mostIntervals)) fatalStop("a graph of points without end");
  // From just below, for the quotients decide.
  std::int64_t count = std::max<std::int64_t>(6, 2 * static_cast<std::int64_t>(steps / 2) - 2);
  while (longestStep < std::abs(length) / static_cast<double>(count)) count += 2;
  return count;
}

}  // namespace

SplineChartView SplineChartManager::trigonometricChartView(const TrigonometricChartData& data) {
  constexpr int places = 3;
  const double length = required(data.lengthOfGraph, "a graph without a length") + std::abs(data.offset);
  if (!std::isfinite(length)) fatalStop("a graph without end");
  const Graph& graph = graphOf(required(data.type, "a graph of no function"));
  const std::int64_t count = intervalCount(length, graph.isSteep);
  const double step = TaviMathOperation::rounded(places, length / static_cast<double>(count));
  const double omega = 2 * std::numbers::pi / data.periodLength;
  ChartSeries series{std::string(graph.name), std::string(graph.color), {}, graph.markerRadius};
  series.points.reserve(static_cast<std::size_t>(count) + 1);
  for (std::int64_t index = 0; index <= count; ++index) {
    const double x = step * static_cast<double>(index) + data.offset;
    const double y = data.amplitude * graph.function(omega * x);
    series.points.push_back({x, TaviMathOperation::rounded(places, y)});
  }
  const auto limit = [&](int sign) {
    return graph.isSteep ? std::optional(sign * 2 * data.amplitude) : std::nullopt;
  };
  std::vector<ChartSeries> all;
  all.push_back(std::move(series));
  return {{chartOptions(graph.type, std::string(graph.title), std::move(all), xAxis("x", {}, {}, true),
                        yAxis("y", limit(-1), limit(1)))}};
}

}  // namespace tavi
