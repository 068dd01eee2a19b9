#pragma once

#include <string>
#include <string_view>
#include <variant>

#include "charts/chart_data.h"

namespace tavi {

/// A row of charts as another program describes it.
struct ChartRequest {
  std::string id;    ///< Any JSON value, written out; null unless told.
  double width = 0;  ///< Of the row.
  ChartRow charts;
};

/// What is wrong with a text that is no request.
struct ChartRequestError {
  std::string reason;
};

/// Reads {"id", "width", "charts": [{"kind", ...}]}: the class of a description and its fields by their
/// names; what may be absent may be missing or null. Any bytes may come; what is no such object is an error,
/// and further fields are passed over.
std::variant<ChartRequest, ChartRequestError> readChartRequest(std::string_view text);

}  // namespace tavi
