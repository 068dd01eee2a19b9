#pragma once

#include <QString>
#include <optional>

namespace tavi {

/// The language in which remote content is offered to a user of that language (ISO 639 codes): the same where
/// there is such content, else English, as also for a user of no known language.
QString contentLanguage(const std::optional<QString>& languageCode);

}  // namespace tavi
