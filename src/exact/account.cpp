#include "exact/account.h"

#include <utility>

namespace tavi::exact {

bool Account::isMarked(std::size_t line) const {
  return proof.lines[line].mark == Mark::isFalse ||
         (proof.resultLine == line && proof.result.mark == Mark::isFalse);
}

Rules Account::rules() const {
  Rules rules = proof.result.rules;
  for (const CheckedLine& line : proof.lines) rules |= line.rules;
  return rules;
}

std::optional<Account> accountOf(Mode mode, std::string_view first, std::string_view second,
                                 const SolutionSteps& steps, int digits) {
  auto answer = exactValue(mode, first, second, digits);
  auto* value = std::get_if<ExactValue>(&answer);
  if (value == nullptr) return std::nullopt;
  Proof proof = proofRead(steps, value->task, true);
  return Account{*std::move(value), std::move(proof)};
}

}  // namespace tavi::exact
