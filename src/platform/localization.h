#pragma once

#include <QString>
#include <QStringList>

namespace tavi {

/// The words for a key in the user's language; without a translation the key itself.
QString localized(const char* key);

/// Loads the translations: English underneath, over it the first of the languages (BCP 47 names, most wanted
/// first) that there is; false when there is none of them. From then on `localized`, QML and the texts of the
/// working speak it. To be called once, when there is an application object and before the first text is
/// read; without languages those of the system are taken.
bool loadTranslations(QStringList languages = {});

/// The language that the texts are in, by its BCP 47 name; empty without any.
QString spokenLanguage();

/// The languages that there are, by their BCP 47 names.
QStringList translatedLanguages();

/// What the language calls itself, such as "Deutsch" for "de"; the code for one that there is not.
QString languageName(const QString& language);

}  // namespace tavi
