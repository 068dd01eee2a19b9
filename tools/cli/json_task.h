#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "exact/proof_reader.h"
#include "solver/rehearsal.h"

namespace tavi::cli {

/// A task as one line of JSON tells it.
struct JsonTask {
  std::optional<std::string> first, second;
  std::int64_t mode = 0;
};

/// Reads {"first": text or null, "second": text or null, "mode": integer}; absent for anything else, also
/// where values nest more than 1024 deep or a number is beyond 64 bits.
std::optional<JsonTask> readJsonTask(std::string_view line);

/// Appends how a task ends: {"steps", "latexString"}, {"errorKey", "errorFieldIds"}, {"fatal": true} or
/// {"huge": copies}. Each step has its mark as "check" where marks are given. Bytes of a hostile operand that
/// are no UTF-8 are replaced.
void appendJsonEnding(std::string& out, const Rehearsal& ending,
                      std::span<const exact::CheckedLine> marks = {});

}  // namespace tavi::cli
