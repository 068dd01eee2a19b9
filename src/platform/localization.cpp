#include "platform/localization.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>
#include <QTranslator>
#include <algorithm>

#include "output/localized_string.h"

namespace tavi {

namespace {

const QString folder = QStringLiteral(":/i18n/");
const QString namePrefix = QStringLiteral("tavi_");

/// "de-AT" is also served by "de". English needs no file of its own: it lies under all others.
bool load(QTranslator& translator, const QString& language) {
  return translator.load(folder + namePrefix + QString(language).replace(u'-', u'_'));
}

bool install(const QString& language) {
  auto* translator = new QTranslator(QCoreApplication::instance());
  return load(*translator, language) && QCoreApplication::installTranslator(translator);
}

}  // namespace

QString localized(const char* key) {
  return qtTrId(key);
}

bool loadTranslations(QStringList languages) {
  if (languages.isEmpty()) languages = QLocale::system().uiLanguages();
  install(QStringLiteral("en"));
  const bool isFound = std::any_of(languages.begin(), languages.end(), install);
  LocalizedText::installLookup([](std::string_view key, std::string_view) {
    return localized(std::string(key).c_str()).toStdString();
  });
  return isFound;
}

// The last one installed lies over the others; those that did not load have none.
QString spokenLanguage() {
  const auto translators = QCoreApplication::instance()->findChildren<QTranslator*>();
  QString language;
  for (const QTranslator* translator : translators)
    if (!translator->language().isEmpty()) language = translator->language();
  return language.replace(u'_', u'-');
}

QStringList translatedLanguages() {
  QStringList languages = QDir(folder).entryList(QDir::Files, QDir::Name);
  languages.removeIf([](const QString& name) { return !name.startsWith(namePrefix); });
  for (QString& name : languages) name = name.mid(namePrefix.size()).section(u'.', 0, 0).replace(u'_', u'-');
  return languages;
}

QString languageName(const QString& language) {
  QTranslator translator;
  return load(translator, language) ? translator.translate("", "languageName") : language;
}

}  // namespace tavi
