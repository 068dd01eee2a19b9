#include "remote/ads/tavi_ads_view_controller.h"

#include <QCoreApplication>
#include <limits>
#include <utility>

#include "appearance/appearance.h"
#include "appearance/interface_colors.h"
#include "appearance/keypad_palette.h"
#include "platform/analytics.h"
#include "platform/localization.h"
#include "remote/ads/ad_content.h"
#include "remote/analytics_events.h"
#include "shell/frame/link_opening.h"

namespace tavi {

TaviAdsViewController::TaviAdsViewController(PreferenceStore& preferences, const Links& links,
                                             std::function<ApplicationContext()> context)
    : preferences_(preferences), links_(links), context_(std::move(context)) {
  setPresentationStyle(PresentationStyle::FullScreen);
}

void TaviAdsViewController::viewDidLoad() {
  ViewController::viewDidLoad();
  configureAd();
}

void TaviAdsViewController::configureAd() {
  const KeypadPalette& palette = KeypadPalette::shared();
  closeColor_ = palette.pink;
  discountColor_ = palette.brightYellow;
  if (!Appearance::shared().isDark())
    buttonShadow_ = {.color = InterfaceColor::shadow(), .opacity = 0.7, .offset = {0, 1}, .radius = 1};
  if (currentAd) {
    pictureName_ = adPictureName(*currentAd, context_());
    discountTitle_ = adDiscountTitle(localized("grabAdsDiscountForPercentage"), *currentAd);
  }
  emit configured();
}

QColor TaviAdsViewController::discountTitleColor() {
  return InterfaceColor::darkTitle();
}

void TaviAdsViewController::viewDidAppear() {
  ViewController::viewDidAppear();
  const auto& count = preferences::countTaviAdsPresented;
  preferences_.setValue(count, preferences_.value(count) + 1);
  log(events::taviAdsPresented);
}

void TaviAdsViewController::tappedCloseButton() {
  log(events::taviAdsClosedAds);
  dismiss();
}

void TaviAdsViewController::tappedDiscountButton() {
  const QUrl address = currentAd ? QUrl(currentAd->linkingString, QUrl::StrictMode) : QUrl();
  if (address.isValid())
    QMetaObject::invokeMethod(
        qApp, [&links = links_, address] { openOrSay(links, address); }, Qt::QueuedConnection);
  log(events::taviAdsOpenedAdProduct);
  dismiss();
}

void TaviAdsViewController::log(QLatin1StringView event) const {
  Analytics::logEvent(event, adParameters(currentAd, context_(), preferences_));
}

}  // namespace tavi
