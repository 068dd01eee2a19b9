#include "platform/localization.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

#include "output/localized_string.h"

namespace tavi {

namespace {

/// "de-AT" is also served by "de". English needs no file of its own: it lies under all others.
bool install(const QString& language) {
  auto* translator = new QTranslator(QCoreApplication::instance());
  const QString name = QStringLiteral(":/i18n/tavi_") + QString(language).replace(u'-', u'_');
  return translator->load(name) && QCoreApplication::installTranslator(translator);
}

}  // namespace

QString localized(const char* key) {
  return qtTrId(key);
}

void loadTranslations(QStringList languages) {
  if (languages.isEmpty()) languages = QLocale::system().uiLanguages();
  install(QStringLiteral("en"));
  for (const QString& language : languages)
    if (install(language)) break;
  LocalizedText::installLookup([](std::string_view key, std::string_view) {
    return localized(std::string(key).c_str()).toStdString();
  });
}

}  // namespace tavi
