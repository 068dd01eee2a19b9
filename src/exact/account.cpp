#include "exact/account.h"

#include <utility>

namespace tavi::exact {

std::optional<Account> accountOf(Mode mode, std::string_view first, std::string_view second,
                                 const SolutionSteps& steps, int digits) {
  auto answer = exactValue(mode, first, second, digits);
  auto* value = std::get_if<ExactValue>(&answer);
  if (value == nullptr) return std::nullopt;
  Proof proof = proofRead(steps, value->task, true);
  return Account{std::move(*value), std::move(proof)};
}

}  // namespace tavi::exact
