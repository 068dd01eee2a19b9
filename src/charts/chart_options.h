#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "charts/chart_data.h"

namespace tavi {

/// How the series of a chart with coordinates are drawn.
enum class ChartType { line, spline, scatter, area };

/// A colour of the interface, in the appearance in force when the chart is drawn.
enum class ChartColor { gray, label, background };

struct ChartSeries {
  std::string name;
  std::string color;                        ///< As the description has it, such as "#ff9900".
  std::vector<ChartPoint> points = {};      ///< As described; what is no pair of finite numbers is a gap.
  std::optional<double> markerRadius = {};  ///< Above 0: the points are marked and not joined.
  bool isStepped = false;                   ///< Keeps the height of a point up to the next one.
};

enum class TickLabels { plain, piMultiples };

struct ChartAxis {
  std::string title;
  std::optional<double> minimum = {};
  std::optional<double> maximum = {};
  std::vector<double> tickPositions = {};  ///< From `minimum` to `maximum`; empty: free.
  std::optional<double> tickInterval = {};
  std::optional<double> minorTickInterval = {};
  bool hasAutomaticMinorTicks = false;
  TickLabels labels = TickLabels::plain;

  static constexpr ChartColor color = ChartColor::gray;  ///< Of line, grid and labels.
  static constexpr double lineWidth = 0.5;
  static constexpr double gridLineWidth = 0.25;
};

/// Lines through the point that is pointed at, along both axes.
struct ChartCrosshair {
  ChartColor color = ChartColor::label;
  std::string_view dashStyle = "longDashDotDot";
  double width = 1.5;
};

/// The words at the point that is pointed at, a line each: {point.key} stands for its x, {point.y} for its y.
struct ChartTooltip {
  std::string header;
  std::string point;
};

/// Names the series. A click on it does nothing.
struct ChartLegend {
  std::string_view itemColor = "red";
  double itemFontSize = 20;
  std::array<double, 4> measures{20, 10, 20, 20};
  std::array<int, 3> placement{2, 1, 0};  ///< At the foot, in the middle, side by side.
};

struct ChartLanguage {
  std::string_view resetZoom = "重置缩放比例";
  std::string_view thousandsSeparator = ",";
};

/// All that the drawing of a chart with coordinates goes by. Lengths are device-independent pixels.
struct ChartOptions {
  ChartType type = ChartType::line;
  std::string title;
  std::vector<ChartSeries> series;
  ChartAxis xAxis;
  ChartAxis yAxis;
  ChartTooltip tooltip;
  ChartCrosshair crosshair = {};
  ChartLegend legend = {};
  ChartLanguage language = {};

  static constexpr ChartColor titleColor = ChartColor::gray;
  static constexpr ChartColor backgroundColor = ChartColor::background;
};

/// An axis whose ends are as far as its limits, where both are there: with them, ticks a quarter of the
/// maximum apart. A maximum that gives no distance, or limits that give more ticks than anyone can draw:
/// fatal stop.
ChartAxis xAxis(std::string title, std::optional<double> minimum, std::optional<double> maximum,
                bool isTrigonometric);
ChartAxis yAxis(std::string title, std::optional<double> minimum, std::optional<double> maximum);

ChartTooltip tooltip(std::string_view xTitle, std::string_view yTitle);

/// The options of a chart with these axes.
ChartOptions chartOptions(ChartType type, std::string title, std::vector<ChartSeries> series, ChartAxis x,
                          ChartAxis y);

}  // namespace tavi
