#include "shell/launch/application.h"

#include <QIcon>

#include <QtQml/qqmlextensionplugin.h>

#include "appearance/appearance.h"
#include "platform/application_context.h"
#include "platform/localization.h"
#include "platform/motion.h"

Q_IMPORT_QML_PLUGIN(TaviPlugin)

namespace tavi {

namespace {

/// Everything that is named after the application comes after this.
QString namedDataFolder() {
  nameApplication();
  return userDataFolder();
}

}  // namespace

Application::Application(int& argumentCount, char** arguments)
    : QGuiApplication(argumentCount, arguments), instance_(namedDataFolder()) {
  setWindowIcon(QIcon::fromTheme(desktopFileName()));
  loadTranslations();
  Appearance::shared().followSystem();
  Motion::shared().followSystem();
}

Application::~Application() = default;

bool Application::launch() {
  if (!instance_.isFirst()) return false;
  delegate_.emplace(engine_);
  delegate_->didFinishLaunching();
  connect(&instance_, &SingleInstance::shown, this, &Application::showWindow);
  return true;
}

void Application::showWindow() {
  QQuickWindow* window = delegate_->window();
  window->setWindowStates(window->windowStates() & ~Qt::WindowMinimized);
  window->raise();
  window->requestActivate();
}

}  // namespace tavi
