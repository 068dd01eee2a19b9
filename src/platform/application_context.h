#pragma once

#include <QString>
#include <optional>

namespace tavi {

/// Who this application is, and for whom it speaks.
struct ApplicationContext {
  std::optional<QString> identifier;    ///< Reverse domain name under which the family's records know it.
  std::optional<QString> languageCode;  ///< ISO 639 code of the user's first language, such as "de".

  /// As the system has it at this moment; the language is absent under the locale "C".
  static ApplicationContext current();
};

/// Gives Qt the names from which it derives the user's data directory and by which a desktop finds the
/// application's entry and icon, and the version. To be called before anything is stored or shown.
void nameApplication();

/// The folder in which the application keeps what is its user's.
QString userDataFolder();

}  // namespace tavi
