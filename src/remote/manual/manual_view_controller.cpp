#include "remote/manual/manual_view_controller.h"

#include "platform/localization.h"
#include "platform/resource_bundle.h"

namespace tavi {

void ManualViewController::show(ViewController& over, const QString& imageName) {
  auto manual = std::make_shared<ManualViewController>(imageName);
  if (over.engine()) manual->setPage(*over.engine(), QStringLiteral("remote/manual/ManualPage.qml"));
  manual->setPresentationStyle(PresentationStyle::PageSheet);
  over.present(std::move(manual));
}

QString ManualViewController::title() const {
  return localized("Assistance");
}

QStringList ManualViewController::legend() const {
  if (!ResourceBundle::main().picture(imageName_)) return {};
  QStringList legend;
  for (const char* key :
       {"manual1", "manual2", "manual3", "manual4", "manual5", "manual6", "manual7", "manual8", "manual9"})
    legend.append(localized(key));
  return legend;
}

}  // namespace tavi
