#include "shell/frame/page_loader.h"

#include <QQmlComponent>

#include "number/fatal_stop.h"

namespace tavi {

QUrl pageUrl(const QString& page) {
  return {QStringLiteral("qrc:/qt-project.org/imports/Tavi/") + page};
}

std::unique_ptr<QObject> loadPageObject(QQmlEngine& engine, const QString& page,
                                        const QVariantMap& properties) {
  QQmlComponent component(&engine, pageUrl(page));
  std::unique_ptr<QObject> object;
  if (component.isReady()) object.reset(component.createWithInitialProperties(properties));
  if (!object) fatalStop("a page does not load: " + component.errorString().toStdString());
  QQmlEngine::setObjectOwnership(object.get(), QQmlEngine::CppOwnership);
  return object;
}

}  // namespace tavi
