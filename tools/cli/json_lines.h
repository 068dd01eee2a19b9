#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace tavi::cli {

/// What is read of lines.
struct LineRules {
  std::size_t longest = 1024UL * 1024;  ///< In bytes; beyond it a line is malformed. So memory has a bound.
  std::string_view malformed = R"({"malformed":true})";  ///< The answer to a malformed line.
};

/// Appends the answer of one line, without a line end; false, with nothing appended, for a malformed one.
using LineAnswer = std::function<bool(std::string_view line, std::string& out)>;

/// Answers each line of standard input by one line of standard output, in order. All that came in one block
/// is answered before the next is awaited, so that whoever writes a line and waits gets its answer. Ends with
/// the input, or where the output cannot be written: by SIGPIPE, or if that is ignored with an exit code. The
/// result is the exit code.
int answerLines(const LineAnswer& answer, const LineRules& rules = {});

/// Writes what came together of the answers once it is worth it, also of a part of a line, and empties it:
/// for an answer without bounds. False where the output can no longer be written; the rest of the answer is
/// of no use then.
bool writeBlock(std::string& out);

/// Appends a text (UTF-8) in quotes, as JSON; bytes that are no UTF-8 are replaced.
void appendJsonText(std::string& out, std::string_view text);

}  // namespace tavi::cli
