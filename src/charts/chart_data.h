#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tavi {

/// What a solver wants to be drawn. Plain data that is shared by reference; the class says which kind of
/// chart it is, and the views of the charts do the drawing.
struct ChartData {
  ChartData() = default;
  virtual ~ChartData() = default;
  ChartData(const ChartData&) = delete;
  ChartData& operator=(const ChartData&) = delete;

  double frameRatio = 0;  ///< Width of the chart's row divided by its height.
};

/// The charts that share one row of a table, and all rows of charts.
using ChartRow = std::vector<std::shared_ptr<ChartData>>;
using ChartRows = std::vector<ChartRow>;

/// x and y.
using ChartPoint = std::vector<double>;

/// A straight line between two points, with marked points.
struct LineChartData : ChartData {
  std::string chartTitle;
  std::string dataName;
  std::string chartColorHexCode;  ///< Such as "#ff9900", as in all charts.
  ChartPoint startPoint;
  ChartPoint endPoint;
  std::vector<ChartPoint> markedPoints;
  double axisLimit = 0;  ///< Both axes reach to its absolute value in both directions.
};

enum class Quadrant { first, second, third, fourth };

/// "I", "II", "III" or "IV".
std::string_view rawValue(Quadrant quadrant);

/// The quadrant of that text, absent for any other.
std::optional<Quadrant> quadrantFromRawValue(std::string_view text);

/// An angle on the unit circle, in a row twice as wide as high.
struct UnitCircleChartData : ChartData {
  UnitCircleChartData(std::optional<double> degrees, std::optional<double> radians,
                      std::optional<double> reducedAngle, std::optional<std::int64_t> turns,
                      std::optional<Quadrant> quadrantOfAngle);

  std::optional<double> alpha;              ///< As entered, in degrees.
  std::optional<double> b;                  ///< As entered, in radians.
  std::optional<double> angle;              ///< Reduced to one turn.
  std::optional<std::int64_t> fullCircles;  ///< Full turns in what was entered.
  std::optional<Quadrant> quadrant;         ///< Of the reduced angle.
};

enum class TrigonometricType { sin, cos, tan };

/// A graph of sine, cosine or tangent.
struct TrigonometricChartData : ChartData {
  std::optional<double> lengthOfGraph;  ///< Of the range of x; must be there when it is drawn.
  double offset = 0;                    ///< x of the first point; its absolute value extends the range.
  double periodLength = 0;
  double amplitude = 0;                   ///< Factor on the value of the function.
  std::optional<TrigonometricType> type;  ///< Must be there when it is drawn.
};

/// A curve through given points. Several in one row share one chart.
struct CommonSplineChartData : ChartData {
  std::string chartTitle;
  std::string dataName;
  std::string chartColorHexCode;
  std::vector<ChartPoint> dataSet;
  std::optional<double> lengthOfGraph;  ///< Not needed for the drawing.
};

/// Areas under one or more series.
struct HistogramChartData : ChartData {
  struct Series {
    std::string hexColor;
    std::vector<ChartPoint> dataValues;
  };

  std::string chartTitle;
  std::string dataName;
  std::string xAxisName;
  std::vector<Series> dataSetWithColorTheme;
};

/// A distribution function as steps.
struct DistributionFunctionChartData : ChartData {
  std::string chartTitle;
  std::string dataName;
  std::string xAxisName;
  std::string chartColorHexCode;
  std::vector<ChartPoint> dataSet;  ///< The steps, in rising x.
  bool isPresentationView = false;  ///< Drawn as text in place of a graph.
  bool isConverse = false;          ///< Falls from 1 to 0.
};

/// The tree of a repeated trial with two outcomes.
struct BernoulliDistributionTreeChartData : ChartData {
  std::string chartTitle;
  std::string chartColorHexCode;
  double probabilityOfSuccess = 0;
  std::int64_t hits = 0;    ///< Highlighted in the tree.
  std::int64_t trials = 0;  ///< Depth of the tree.
};

}  // namespace tavi
