#include "platform/application_context.h"

#include <QGuiApplication>
#include <QLocale>
#include <QStandardPaths>

namespace tavi {

namespace {

// Also the name of the desktop file and of the icon that packaging/ installs.
constexpr QLatin1StringView ownIdentifier("org.example.tavi.powers");

}  // namespace

ApplicationContext ApplicationContext::current() {
  // The languages the user asked for, as the translations see them; the locale's name only tells the
  // region's.
  const QString language = QLocale().uiLanguages().value(0).section('-', 0, 0);
  return {.identifier = QString(ownIdentifier),
          .languageCode = language == u"C" || language.isEmpty() ? std::nullopt : std::optional(language)};
}

void nameApplication() {
  QCoreApplication::setOrganizationDomain(QStringLiteral("tavi.example.org"));
  QCoreApplication::setApplicationName(QStringLiteral("tavi"));
  QCoreApplication::setApplicationVersion(QStringLiteral(TAVI_VERSION));
  QGuiApplication::setDesktopFileName(ownIdentifier);
}

QString userDataFolder() {
  return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
}

}  // namespace tavi
