#include "shell/frame/link_opening.h"

#include "platform/localization.h"
#include "shell/frame/view_manager.h"

namespace tavi {

void openOrSay(const Links& links, const QUrl& address) {
  links.open(address, [](bool isOpened) {
    if (!isOpened) ViewManager::showToast(localized("linkNotOpened"));
  });
}

}  // namespace tavi
