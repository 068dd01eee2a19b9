#include "remote/content_language.h"

#include <algorithm>
#include <array>

namespace tavi {

QString contentLanguage(const std::optional<QString>& languageCode) {
  using namespace Qt::StringLiterals;
  static constexpr std::array languages{"de"_L1, "zh"_L1, "ja"_L1, "en"_L1, "es"_L1, "ko"_L1,
                                        "pt"_L1, "ru"_L1, "fr"_L1, "id"_L1, "hi"_L1};
  const bool isKnown = languageCode && std::ranges::find(languages, *languageCode) != languages.end();
  return isKnown ? *languageCode : u"en"_s;
}

}  // namespace tavi
