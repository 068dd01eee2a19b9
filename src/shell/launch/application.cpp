#include "shell/launch/application.h"

#include <QIcon>

#include <QtQml/qqmlextensionplugin.h>

#include "appearance/appearance.h"
#include "platform/application_context.h"
#include "platform/localization.h"

Q_IMPORT_QML_PLUGIN(TaviPlugin)

namespace tavi {

Application::Application(int& argumentCount, char** arguments) : QGuiApplication(argumentCount, arguments) {
  nameApplication();
  setWindowIcon(QIcon::fromTheme(desktopFileName()));
  loadTranslations();
  Appearance::shared().followSystem();
}

Application::~Application() = default;

void Application::launch() {
  delegate_.emplace(engine_);
  delegate_->didFinishLaunching();
}

}  // namespace tavi
