#include "remote/manual/information_view_controller.h"

#include "platform/localization.h"

namespace tavi {

QString InformationViewController::title() const {
  return localized(qUtf8Printable(infoKey_ + QStringLiteral("Title")));
}

QString InformationViewController::text() const {
  return localized(qUtf8Printable(infoKey_ + QStringLiteral("Text")));
}

}  // namespace tavi
