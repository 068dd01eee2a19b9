#include "solution/exact/account_library.h"

#include <QCoreApplication>
#include <QLibrary>

namespace tavi {

namespace {

exact::AccountFunction* loadedFunction() {
  QLibrary library(QCoreApplication::applicationDirPath() +
                   QStringLiteral("/../lib/tavi/plugins/tavi_account.so"));
  auto* function = reinterpret_cast<exact::AccountFunction*>(library.resolve(exact::accountFunctionName));
  if (!function) qWarning("%s", qUtf8Printable(library.errorString()));
  return function;
}

}  // namespace

std::optional<exact::Account> accountOf(const exact::AccountQuestion& question) {
  static exact::AccountFunction* const function = loadedFunction();
  std::optional<exact::Account> account;
  if (function) function(question, account);
  return account;
}

}  // namespace tavi
