// The stations around the calculation: introduction, manual, videos, advertisement, rating.
#include "platform/preferences.h"
#include "remote/ads/tavi_ads_view_controller.h"
#include "remote/introduction/onboard_view_controller.h"
#include "tour/tour.h"

namespace tavi::tour {

namespace {

void waitFor(Stage& stage, const QString& name) {
  waitUntil([&stage, &name] { return stage.shows(name); }, name.toStdString() + " is shown");
}

OnboardViewController& introduction(Stage& stage) {
  auto* shown = qobject_cast<OnboardViewController*>(stage.delegate().drawer()->presentedController());
  if (shown == nullptr) throw Failure("no introduction is shown");
  return *shown;
}

void solve(Stage& stage) {
  stage.clearTheView();
  stage.sendToastsAway();
  if (stage.solutionSteps().empty())
    stage.solve(Mode::power, u"-2", u"3/2");
  else if (stage.shows(QStringLiteral("tab1")))
    stage.tap(QStringLiteral("tab1"));
}

QQuickItem& scrollToVideos(Stage& stage) {
  QQuickItem& table = stage.item(QStringLiteral("solutionTable"));
  stage.picture();
  QMetaObject::invokeMethod(&table, "positionViewAtEnd");
  waitFor(stage, QStringLiteral("videoRow"));
  const QQuickItem& row = stage.item(QStringLiteral("videoRow"));
  const double top = row.mapToItem(&table, QPointF()).y();
  table.setProperty("contentY", table.property("contentY").toReal() + top - 16);
  stage.picture();
  return table;
}

void unlock(Stage& stage) {
  lockedVideos(stage);
  if (!stage.shows(QStringLiteral("lockingView"))) return;
  videoGuide(stage);
  for (int page = 0; page < 5; ++page) {
    stage.tap(QStringLiteral("onboardAdvance"));
    stage.picture();
  }
  waitUntil([&stage] { return !stage.shows(QStringLiteral("onboardAdvance")); },
            "the guide has come to its end");
}

void introductionPage(Stage& stage, int page) {
  if (stage.shows(QStringLiteral("alertAction0"))) stage.tap(QStringLiteral("alertAction0"));
  waitUntil([&stage] { return !stage.shows(QStringLiteral("alertAction0")); },
            "the privacy text is accepted");
  if (page > 0) stage.tap(QStringLiteral("onboardAdvance"));
  if (introduction(stage).currentPage() != page) throw Failure("another page of the introduction");
}

}  // namespace

void firstConsent(Stage& stage) {
  waitFor(stage, QStringLiteral("alertAction0"));
  introduction(stage);
}

void introductionPage1(Stage& stage) {
  introductionPage(stage, 0);
}
void introductionPage2(Stage& stage) {
  introductionPage(stage, 1);
}
void introductionPage3(Stage& stage) {
  introductionPage(stage, 2);
}
void introductionPage4(Stage& stage) {
  introductionPage(stage, 3);
}
void introductionPage5(Stage& stage) {
  introductionPage(stage, 4);
}

void menuIntroduction(Stage& stage) {
  stage.clearTheView();
  stage.tap(QStringLiteral("menuButton"));
  waitFor(stage, QStringLiteral("menuRow 0 2"));
  stage.picture();
  stage.tap(QStringLiteral("menuRow 0 2"));
  waitFor(stage, QStringLiteral("onboardAdvance"));
}

void settings(Stage& stage) {
  stage.clearTheView();
  stage.tap(QStringLiteral("menuButton"));
  waitFor(stage, QStringLiteral("settingsButton"));
  stage.picture();
  stage.tap(QStringLiteral("settingsButton"));
  waitFor(stage, QStringLiteral("languageRow"));
}

void inputManual(Stage& stage) {
  stage.clearTheView();
  stage.openInput();
  stage.picture();
  stage.tap(QStringLiteral("manualButton"));
  waitFor(stage, QStringLiteral("manualScroll"));
}

void solutionManual(Stage& stage) {
  solve(stage);
  stage.picture();
  stage.tap(QStringLiteral("manualButton"));
  waitFor(stage, QStringLiteral("manualScroll"));
}

void lockedVideos(Stage& stage) {
  stage.delegate().solutionViewController()->videos()->setPlayerSource(QUrl("qrc:/tour/Player.qml"));
  solve(stage);
  scrollToVideos(stage);
}

void videoConsent(Stage& stage) {
  lockedVideos(stage);
  stage.tap(QStringLiteral("unlockButton"));
  waitFor(stage, QStringLiteral("alertAction1"));
}

void videoGuide(Stage& stage) {
  videoConsent(stage);
  stage.picture();
  stage.tap(QStringLiteral("alertAction0"));
  waitFor(stage, QStringLiteral("onboardAdvance"));
}

void readyVideos(Stage& stage) {
  stage.clearTheView();
  unlock(stage);
  scrollToVideos(stage);
}

void unknownVideo(Stage& stage) {
  readyVideos(stage);
  QMetaObject::invokeMethod(&stage.item(QStringLiteral("videoCollection")), "positionViewAtEnd");
}

void advertisement(Stage& stage) {
  stage.clearTheView();
  auto ad = std::make_shared<TaviAdsViewController>();
  ad->currentAd = RemoteConfigManager::shared().ads().first().first();
  ad->setPage(*stage.delegate().drawer()->engine(), QStringLiteral("remote/ads/AdPage.qml"));
  stage.delegate().drawer()->present(ad);
  waitFor(stage, QStringLiteral("adDiscountButton"));
}

void rating(Stage& stage) {
  stage.clearTheView();
  stage.openInput();
  stage.picture();
  solve(stage);
  PreferenceStore::standard().setValue(preferences::counterForRating, 1);
  stage.picture();
  if (stage.shows(QStringLiteral("tab0")))
    stage.openInput();
  else
    stage.delegate().leftViewController()->didSelectRow(LeftViewController::mainSection, 0);
  waitFor(stage, QStringLiteral("StarRatingView"));
  stage.tap(QStringLiteral("StarRatingView"));
}

}  // namespace tavi::tour
