#pragma once

#include <optional>
#include <string>

#include "exact/account.h"

namespace tavi::exact {

/// What an account is asked of.
struct AccountQuestion {
  Mode mode;
  std::string first, second;
  SolutionSteps steps;
  int digits = usualDigits;
};

/// The one function of the module, by its name there; see `accountOf`. It may be called from any thread.
using AccountFunction = void(const AccountQuestion& question, std::optional<Account>& account);
inline constexpr const char* accountFunctionName = "taviAccount";

}  // namespace tavi::exact
