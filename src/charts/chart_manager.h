#pragma once

#include <optional>
#include <variant>

#include "charts/chart_data.h"
#include "charts/chart_options.h"
#include "charts/distribution_function_presentation.h"
#include "charts/tree_chart.h"
#include "charts/unit_circle_chart.h"

namespace tavi {

// Charts with coordinates, by the family of what they draw.
struct CoordinateChartView {
  ChartOptions options;
};
struct LineChartView : CoordinateChartView {};
struct SplineChartView : CoordinateChartView {};
struct AreaChartView : CoordinateChartView {};

/// What is to be drawn, worked out of the descriptions. It can be drawn in any size.
using ChartView = std::variant<LineChartView, SplineChartView, AreaChartView, TreeChartView,
                               UnitCircleChartView, DistributionFunctionPresentationView>;

/// The options of a chart with coordinates; none of any other.
const ChartOptions* optionsOf(const ChartView& view);

/// A place in a row, in the unit of the row's width.
struct ChartFrame {
  double x = 0;
  double y = 0;
  double width = 0;
  double height = 0;
};

// What each kind of description comes to. All are stateless.

class LineChartManager {
 public:
  static LineChartView lineChartView(const LineChartData& data);

  /// No points, or nothing in the first or last of them: fatal stop.
  static LineChartView distributionChartView(const DistributionFunctionChartData& data);
};

class SplineChartManager : public ChartData {
 public:
  /// No length of the graph, no type, or more points than anyone can draw: fatal stop.
  static SplineChartView trigonometricChartView(const TrigonometricChartData& data);

  static SplineChartView commonSplineChartView(const std::vector<const CommonSplineChartData*>& curves);
};

class AreaChartManager : public ChartData {
 public:
  /// A series without values: fatal stop.
  static AreaChartView histogramChartView(const HistogramChartData& data);
};

class TreeChartManager {
 public:
  /// A tree that is too deep, or whose hits overflow: fatal stop.
  static TreeChartView treeChartView(const BernoulliDistributionTreeChartData& data);
};

class UnitCircleChartManager {
 public:
  /// More turns than anyone watches, an angle that is no integer of degrees: fatal stop.
  static UnitCircleChartView unitCircleChartView(const UnitCircleChartData& data);
};

/// Finds the view of a row of charts.
class ChartManager {
 public:
  /// The view of the row; none if the charts have no view, or none together.
  static std::optional<ChartView> chartView(const ChartRow& charts);

  static std::optional<ChartView> singleChartView(const ChartData& chart);

  /// Only common splines share a view.
  static std::optional<ChartView> multiChartView(const ChartRow& charts);

  /// Where the view stands in a row of that width: the row is as high as the ratio of its first chart says,
  /// with margins of a twentieth. A height that is not finite: fatal stop.
  static ChartFrame chartFrame(const ChartData& first, double rowWidth);
};

}  // namespace tavi
