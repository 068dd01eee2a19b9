#include "shell/frame/file_saving.h"

#include <private/qguiapplication_p.h>

#include <qpa/qplatformtheme.h>

#include "platform/localization.h"

namespace tavi {

bool hasFileDialog() {
  const QPlatformTheme* theme = QGuiApplicationPrivate::platformTheme();
  return theme != nullptr && theme->usePlatformNativeDialog(QPlatformTheme::FileDialog);
}

QString failureWords(WriteResult result) {
  switch (result) {
    case WriteResult::noRoom:
      return localized("sharingNoRoom");
    case WriteResult::notWritable:
      return localized("sharingNotWritable");
    case WriteResult::written:
      break;
  }
  return {};
}

}  // namespace tavi
