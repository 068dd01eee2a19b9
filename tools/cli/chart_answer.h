#pragma once

#include <ostream>
#include <string>

namespace tavi::cli {

/// Answers a line that describes a row of charts by one line: where its view stands and what is to be drawn,
/// or why there is none. Writes no line end.
void answerChartLine(std::ostream& out, const std::string& line);

}  // namespace tavi::cli
