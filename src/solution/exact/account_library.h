#pragma once

#include <optional>

#include "exact/account_module.h"

namespace tavi {

/// The account of a working; absent where there is none, and where the library for it cannot be loaded, which
/// is told on the console once. The library is loaded at the first call. May be called from any thread.
std::optional<exact::Account> accountOf(const exact::AccountQuestion& question);

}  // namespace tavi
