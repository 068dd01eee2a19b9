#pragma once

#include <QString>
#include <QStringList>

namespace tavi {

/// The words for a key in the user's language; without a translation the key itself.
QString localized(const char* key);

/// Loads the translations: English underneath, over it the first of the languages (BCP 47 names, most wanted
/// first) that there is. From then on `localized`, QML and the texts of the working speak it. To be called
/// once, before the first text is read; without languages those of the system are taken.
void loadTranslations(QStringList languages = {});

}  // namespace tavi
