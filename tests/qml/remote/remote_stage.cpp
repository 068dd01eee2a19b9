#include "remote_stage.h"

#include <QQmlContext>

#include <QtQml/qqmlextensionplugin.h>
#include <QtQuickTest/quicktest.h>

#include "offscreen.h"
#include "platform/localization.h"

Q_IMPORT_QML_PLUGIN(TaviPlugin)

namespace tavi {

void RemoteStage::qmlEngineAvailable(QQmlEngine* engine) {
  loadTranslations({QStringLiteral("en")});
  engine->rootContext()->setContextProperty("stage", this);
}

}  // namespace tavi

int main(int argc, char** argv) {
  tavi::useOffscreenScreen();
  tavi::RemoteStage stage;
  return quick_test_main_with_setup(argc, argv, "remote", TAVI_QML_TESTS, &stage);
}
