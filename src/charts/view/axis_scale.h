#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "charts/chart_options.h"

namespace tavi {

struct ValueRange {
  double low = 0;
  double high = 0;
};

/// Whether a point is one that can be drawn: a pair of finite numbers.
bool isShown(const ChartPoint& point);

/// From the least to the greatest x (0) or y (1) of the points that are shown; absent if none is.
std::optional<ValueRange> dataRange(const ChartOptions& options, std::size_t coordinate);

struct AxisLabel {
  double value = 0;
  std::string text;
};

/// Which values an axis reaches over, where its grid lines are and what stands beside it.
struct AxisScale {
  ValueRange range;
  std::vector<double> gridValues;
  std::vector<AxisLabel> labels;  ///< Of some of the grid's values.
  double minorInterval = 0;       ///< Between the marks within the grid; 0 for none.
  int exponent = 0;               ///< The labels are to be multiplied by this power of ten.
};

struct AxisNeeds {
  std::optional<ValueRange> data = {};  ///< Absent: nothing to show.
  bool endsOnTicks = false;             ///< A free axis goes on to the next tick at either end.
  int mostLabels = 0;                   ///< At least 3: zero and an end at either side.
  std::string_view thousandsSeparator = {};
};

AxisScale axisScale(const ChartAxis& axis, const AxisNeeds& needs);

/// A number as a tooltip or a voice tells it, with about six digits: 1.5708, −0.25, 1.2·10⁹.
std::string shortNumber(double value);

/// "×10⁶"; empty for an exponent of 0.
std::string powerOfTen(int exponent);

}  // namespace tavi
