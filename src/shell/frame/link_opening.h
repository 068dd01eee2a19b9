#pragma once

#include "platform/links.h"

namespace tavi {

/// Opens the address outside the application, or says in a toast that it cannot be opened.
void openOrSay(const Links& links, const QUrl& address);

}  // namespace tavi
