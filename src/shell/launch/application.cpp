#include "shell/launch/application.h"

#include <QDir>
#include <QIcon>
#include <QLocale>
#include <QPainter>
#include <QQuickWindow>
#include <QSvgRenderer>
#include <algorithm>
#include <array>
#include <cstdio>

#include <QtQml/qqmlextensionplugin.h>

#ifdef __GLIBC__
#include <malloc.h>
#endif

#include "appearance/appearance.h"
#include "appearance/formula_scale.h"
#include "appearance/interface_fonts.h"
#include "platform/analytics.h"
#include "platform/application_context.h"
#include "platform/localization.h"
#include "platform/motion.h"
#include "platform/preferences.h"
#include "platform/resource_bundle.h"
#include "platform/system_voice.h"
#include "shell/frame/page_loader.h"
#include "shell/launch/command_line.h"
#include "shell/settings/settings_view_controller.h"

Q_IMPORT_QML_PLUGIN(TaviPlugin)

namespace tavi {
namespace {

// Without graphics hardware Qt Quick would draw with OpenGL in software, which costs a start 1.6 times the
// time, 2.4 times the memory and twice the processor time of its own software renderer. What the user's
// environment says about it holds. A web view can show what it draws with graphics hardware only in contexts
// that share.
void chooseRenderer() {
#ifdef Q_OS_LINUX
  constexpr std::array variables{"QT_QUICK_BACKEND", "QMLSCENE_DEVICE", "QSG_RHI_BACKEND",
                                 "LIBGL_ALWAYS_SOFTWARE"};
  const bool isChosen = std::any_of(variables.begin(), variables.end(), qEnvironmentVariableIsSet);
  const auto isRenderer = [](const QString& name) { return name.startsWith(QLatin1StringView("renderD")); };
  const bool isHardware = std::ranges::any_of(QDir("/dev/dri").entryList(QDir::System), isRenderer);
  if (!isChosen && !isHardware) return QQuickWindow::setSceneGraphBackend("software");
#endif
  QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
}

/// A change is drawn in the next turn of the event loop; Qt would wait 5 ms for more of them.
void drawAtOnce() {
  constexpr const char* variable = "QT_QPA_UPDATE_IDLE_TIME";
  if (!qEnvironmentVariableIsSet(variable)) qputenv(variable, "0");
}

/// One heap for all threads, unless the environment says otherwise: one for each of those that take turns in
/// a start grows page by page, a call of the kernel for each, and a long use leaves each of them in pieces.
void shareHeap() {
#ifdef __GLIBC__
  if (!qEnvironmentVariableIsSet("MALLOC_ARENA_MAX")) mallopt(M_ARENA_MAX, 1);
#endif
}

// Where a session names no message bus, Qt would have one started that nobody speaks on, and wait for it. It
// looks once, in the usual place alone; what the application starts finds the environment as it was.
constexpr const char* busVariable = "DBUS_SESSION_BUS_ADDRESS";
constexpr const char* usualBus = "unix:runtime=yes";

void nameUsualBus() {
  if (!qEnvironmentVariableIsSet(busVariable)) qputenv(busVariable, usualBus);
}

void forgetUsualBus() {
  if (qgetenv(busVariable) == usualBus) qunsetenv(busVariable);
}

/// What holds before anything of the application object is made.
int& withProcessReady(int& argumentCount) {
  shareHeap();
  chooseRenderer();
  drawAtOnce();
  nameUsualBus();
  return argumentCount;
}

/// The language chosen in the settings, otherwise the system's. What speaks of the user's language asks Qt's
/// default locale for it.
void speakStoredLanguage() {
  const QString chosen = PreferenceStore::standard().value(preferences::language);
  if (!translatedLanguages().contains(chosen)) {
    loadTranslations();
    return;
  }
  QLocale::setDefault(QLocale(chosen));
  loadTranslations({chosen});
}

/// For a desktop that does not take it from the menu entry. Drawn here, as to look through the icon themes
/// costs a start ten times as much.
QIcon ownIcon() {
  QPixmap icon(64, 64);
  icon.fill(Qt::transparent);
  QPainter painter(&icon);
  QSvgRenderer(QStringLiteral(":/icon.svg")).render(&painter);
  return icon;
}

QtMessageHandler messageHandler = nullptr;

/// Two complaints of Qt's are kept from the console. For each size of a text in Hindi: that the interface's
/// font knows nothing of that script, before it takes one that does. And where a finger leaves a place that
/// it touched and that has gone from the window meanwhile: that a TapHandler has no window to disconnect
/// from.
void passMessageOn(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (!message.contains(QLatin1StringView("OpenType support missing for")) &&
      message != QLatin1StringView("QObject::disconnect: Unexpected nullptr parameter"))
    messageHandler(type, context, message);
}

/// Lets the thread that reads pages go on: now and then it waits for the main one to set up a module.
void letReadingGoOn() {
  QCoreApplication::sendPostedEvents(nullptr, QEvent::User);
}

/// Everything that is named after the application comes after this.
QString namedDataFolder() {
  nameApplication();
  return userDataFolder();
}

}  // namespace

Application::Application(int& argumentCount, char** arguments)
    : QGuiApplication(withProcessReady(argumentCount), arguments), instance_(namedDataFolder()) {
  readFirstPages();
  if (messageHandler == nullptr) messageHandler = qInstallMessageHandler(passMessageOn);
  setWindowIcon(ownIcon());
  letReadingGoOn();
  InterfaceFont::icons(16);  // Loaded before there is any text, as what comes later lays out all of it anew.
  letReadingGoOn();
  setFont(InterfaceFont::book(16));
  letReadingGoOn();
  speakStoredLanguage();
  Appearance::shared().followSystem();
  applyStoredAppearance(PreferenceStore::standard());
  FormulaScale::shared().load(PreferenceStore::standard());
  FormulaScale::shared().followSystem();
  Motion::shared().followSystem();
  forgetUsualBus();
  letReadingGoOn();
}

Application::~Application() {
  Analytics::setSink({});
  SystemVoice::shared()->end();
}

void Application::readFirstPages() {
  for (const char* page : {"shell/frame/AppWindow.qml", "shell/frame/DrawerPage.qml",
                           "shell/frame/TabsPage.qml", "shell/CalculatePage.qml"})
    firstPages_.push_back(std::make_unique<QQmlComponent>(&engine_, pageUrl(QString::fromLatin1(page)),
                                                          QQmlComponent::Asynchronous));
}

std::optional<int> Application::launch(const QStringList& arguments) {
  const auto asked = readCommandLine(arguments);
  if (const auto* refusal = std::get_if<StartRefusal>(&asked)) {
    std::fputs(qPrintable(QStringLiteral("tavi: ") + refusal->words), stderr);
    return refusal->exitCode;
  }
  const auto& task = std::get<std::optional<Calculation>>(asked);
  if (!instance_.isFirst(task ? argumentsOf(*task) : QStringList())) return 0;
  connect(this, &QCoreApplication::aboutToQuit, &instance_, &SingleInstance::retire);
  startMeasuring();
  delegate_.emplace(engine_, AppServices{.measurement = measurement_.get()});
  delegate_->didFinishLaunching();
  if (task) delegate_->openTask(*task);
  connect(&instance_, &SingleInstance::shown, this, &Application::show);
  return std::nullopt;
}

void Application::startMeasuring() {
  measurement_ = MeasurementClient::fromBundle(ResourceBundle::main());
  if (!measurement_) return;
  const PreferenceStore& preferences = PreferenceStore::standard();
  measurement_->setConsent(preferences.value(preferences::isDsgvoAccepted) &&
                           preferences.value(preferences::acceptedMeasurement) == measurement_->terms());
  Analytics::setSink([this](const AnalyticsEvent& event) { measurement_->take(event); });
  connect(this, &QCoreApplication::aboutToQuit, measurement_.get(), &MeasurementClient::finish);
}

void Application::show(const QStringList& arguments) {
  QQuickWindow* window = delegate_->window();
  window->setWindowStates(window->windowStates() & ~Qt::WindowMinimized);
  window->raise();
  window->requestActivate();
  // They were read before; whoever asks otherwise is none of us.
  const auto asked = readCommandLine(arguments);
  const auto* task = std::get_if<std::optional<Calculation>>(&asked);
  if (task && *task) delegate_->openTask(**task);
}

}  // namespace tavi
