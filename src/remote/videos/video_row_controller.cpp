#include "remote/videos/video_row_controller.h"

#include <QCoreApplication>
#include <QDir>
#include <QLibrary>
#include <algorithm>

#include "appearance/color_manager.h"
#include "remote/consent/dsgvo_manager.h"
#include "remote/introduction/onboarding_manager.h"
#include "remote/videos/video_link.h"
#include "remote/videos/video_page.h"
#include "shell/frame/link_opening.h"

namespace tavi {

namespace {

/// Loads what is behind the system's web view, where that is installed, by its own `QtWebView::initialize`:
/// the application is not linked with it. The import in QML alone would do it on the thread that reads QML,
/// and that ends the process. Says whether there is a plug-in with an engine; without one the view would
/// complain and stay empty.
bool loadWebView() {
  const bool hasEngine = std::ranges::any_of(QCoreApplication::libraryPaths(), [](const QString& plugins) {
    return !QDir(plugins + QStringLiteral("/webview")).isEmpty();
  });
  if (!hasEngine) return false;
  if (auto* initialize = QLibrary::resolve(QStringLiteral("Qt6WebView"), 6, "_ZN9QtWebView10initializeEv"))
    initialize();
  return true;
}

}  // namespace

VideoRowController::VideoRowController(ViewController& page, PreferenceStore& preferences,
                                       const ProjectSettings& settings, const Links& links)
    : page_(page), preferences_(preferences), settings_(settings), links_(links) {
  QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
}

VideoRowController::~VideoRowController() = default;

void VideoRowController::awakeFromNib() {
  setLocked(!preferences_.value(preferences::isYoutubeDsgvoAccepted));
}

void VideoRowController::tappedLockingViewButton() {
  DsgvoManager::showYoutubeConsent(page_, preferences_, [self = QPointer(this)] {
    if (self) self->unlockVideos();
  });
}

/// Where the consent is withdrawn. To give it here changes the row only when it is made anew.
void VideoRowController::tappedPrivacyButton() {
  DsgvoManager::showYoutubeConsent(page_, preferences_, {}, [self = QPointer(this)] {
    if (self) self->lockVideos();
  });
}

void VideoRowController::tappedManualButton() {
  presentGuide();
}

void VideoRowController::applyStyle(QQuickItem* item) {
  if (View* view = View::of(item)) ColorManager::applyStyle(*view);
}

void VideoRowController::applyFloatingShadow(QQuickItem* item) {
  if (View* view = View::of(item)) ColorManager::applyFloatingShadow(*view);
}

bool VideoRowController::isVideo(const QString& link) const {
  return parseVideoLink(link, settings_.videoHost).has_value();
}

QUrl VideoRowController::systemPlayer() {
  return {QStringLiteral("qrc:/qt-project.org/imports/Tavi/remote/videos/VideoPlayer.qml")};
}

QQmlComponent* VideoRowController::player() {
  if (isLocked_ || !page_.engine()) return nullptr;
  if (!player_) {
    if (playerSource_ == systemPlayer() && !loadWebView()) return nullptr;
    player_ = std::make_unique<QQmlComponent>(page_.engine(), playerSource_);
    QQmlEngine::setObjectOwnership(player_.get(), QQmlEngine::CppOwnership);
  }
  return player_->isReady() ? player_.get() : nullptr;
}

QString VideoRowController::page(const QString& link) const {
  const auto video = parseVideoLink(link, settings_.videoHost);
  return video && !isLocked_ ? videoPage(*video, settings_.videoPlayer) : QString();
}

QString VideoRowController::pageAddress() {
  return QStringLiteral("https://%1/").arg(QCoreApplication::organizationDomain());
}

void VideoRowController::openOutside(const QString& link) const {
  const auto video = parseVideoLink(link, settings_.videoHost);
  if (!video) return;
  QString address =
      QStringLiteral("https://%1/watch?v=%2")
          .arg(settings_.videoHost, QString::fromLatin1(QUrl::toPercentEncoding(video->identifier)));
  if (video->start) address += QStringLiteral("&t=%1s").arg(*video->start);
  openOrSay(links_, QUrl(address, QUrl::StrictMode));
}

void VideoRowController::unlockVideos() {
  setLocked(false);
  presentGuide();
}

void VideoRowController::lockVideos() {
  setLocked(true);
}

void VideoRowController::setLocked(bool isLocked) {
  if (isLocked_ == isLocked) return;
  isLocked_ = isLocked;
  emit lockChanged();
}

void VideoRowController::presentGuide() {
  OnboardingManager::videoGuide(preferences_)->presentFrom(page_, true);
}

}  // namespace tavi
