#include "exact/account_module.h"

#include "exact/numbers.h"

extern "C" void taviAccount(const tavi::exact::AccountQuestion& question,
                            std::optional<tavi::exact::Account>& account) {
  account =
      tavi::exact::accountOf(question.mode, question.first, question.second, question.steps, question.digits);
  flint_cleanup();  // What FLINT keeps for a thread would go with it.
}
