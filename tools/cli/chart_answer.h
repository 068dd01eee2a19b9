#pragma once

#include <string>
#include <string_view>

namespace tavi::cli {

/// Appends the answer to a line that describes a row of charts, without a line end: where its view stands and
/// what is to be drawn, or why there is none. An answer without bounds is written out piece by piece.
void answerChartLine(std::string_view line, std::string& out);

}  // namespace tavi::cli
