#pragma once

#include <optional>
#include <string_view>

#include "exact/exact_value.h"
#include "exact/proof_reader.h"

namespace tavi::exact {

/// What is to be told beside a working: the exact value of its task, and where and why it is not true.
struct Account {
  ExactValue value;
  Proof proof;

  /// Whether a line is false, or is a result that is not the value of the task.
  bool isMarked(std::size_t line) const {
    return proof.lines[line].mark == Mark::isFalse ||
           (proof.resultLine == line && proof.result.mark == Mark::isFalse);
  }
  /// All rules by which lines and the result come to be false.
  Rules rules() const {
    Rules rules = proof.result.rules;
    for (const CheckedLine& line : proof.lines) rules |= line.rules;
    return rules;
  }
};

/// Of a task as typed and the steps of its working; absent where the texts are refused. See `exactValue` and
/// `proofRead`.
std::optional<Account> accountOf(Mode mode, std::string_view first, std::string_view second,
                                 const SolutionSteps& steps, int digits = usualDigits);

}  // namespace tavi::exact
