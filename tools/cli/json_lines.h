#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace tavi::cli {

/// The longest line that is read, in bytes; beyond it a line is malformed. So memory has a bound.
constexpr std::size_t lineLimit = 1024UL * 1024;

/// Appends the answer of one line, without a line end; false, with nothing appended, for a malformed one.
using LineAnswer = std::function<bool(std::string_view line, std::string& out)>;

/// Answers each line of standard input by one line of standard output, in order; a malformed one by
/// {"malformed":true}. All that came in one block is answered before the next is awaited, so that whoever
/// writes a line and waits gets its answer. Ends with the input, or where the output cannot be written: by
/// SIGPIPE, or if that is ignored with an exit code. The result is the exit code.
int answerLines(const LineAnswer& answer);

/// Appends a text (UTF-8) in quotes, as JSON; bytes that are no UTF-8 are replaced.
void appendJsonText(std::string& out, std::string_view text);

}  // namespace tavi::cli
