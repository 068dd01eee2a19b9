#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace tavi::cli {

/// What answers come together to before they are written.
constexpr std::size_t blockSize = 64UL * 1024;

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

/// Writes the answers that came together so far, which may be of a part of a line, and empties them. False,
/// with the reason on standard error, where the output cannot be written.
bool writeOut(std::string& out);

/// Appends a text (UTF-8) in quotes, as JSON; bytes that are no UTF-8 are replaced.
void appendJsonText(std::string& out, std::string_view text);

}  // namespace tavi::cli
