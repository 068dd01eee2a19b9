#include "remote/ads/ad_content.h"

#include "remote/content_language.h"

namespace tavi {

QString adPictureName(const TaviAdData& ad, const ApplicationContext& context) {
  return ad.imageName + u'_' + contentLanguage(context.languageCode);
}

QString adDiscountTitle(const QString& text, const TaviAdData& ad) {
  return QString(text).replace(u'§', ad.discountNumber + u'%');
}

QVariantMap adParameters(const std::optional<TaviAdData>& ad, const ApplicationContext& context,
                         const PreferenceStore& preferences) {
  const QString unknown = QStringLiteral("unknown");
  return {{QStringLiteral("sendingApp"), context.identifier.value_or(unknown)},
          {QStringLiteral("taviAdId"), ad ? ad->imageName : unknown},
          {QStringLiteral("countTaviAdsPresented"), preferences.value(preferences::countTaviAdsPresented)}};
}

}  // namespace tavi
