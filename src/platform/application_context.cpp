#include "platform/application_context.h"

#include <QCoreApplication>
#include <QLocale>

namespace tavi {

ApplicationContext ApplicationContext::current() {
  // The languages the user asked for, as the translations see them; the locale's name only tells the
  // region's.
  const QString language = QLocale().uiLanguages().value(0).section('-', 0, 0);
  return {.identifier = QStringLiteral("org.example.tavi.powers"),
          .languageCode = language == u"C" || language.isEmpty() ? std::nullopt : std::optional(language)};
}

void nameApplication() {
  QCoreApplication::setOrganizationDomain(QStringLiteral("tavi.example.org"));
  QCoreApplication::setApplicationName(QStringLiteral("tavi"));
}

}  // namespace tavi
