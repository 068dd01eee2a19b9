#include "remote/rating/rating_view_controller.h"

#include <utility>

#include "appearance/color_manager.h"
#include "number/fatal_stop.h"
#include "platform/analytics.h"
#include "platform/localization.h"
#include "remote/analytics_events.h"
#include "shell/frame/alert_controller.h"

namespace tavi {

namespace {

/// This application among those that report ratings.
constexpr QLatin1StringView applicationCode{"qr"};

}  // namespace

RatingViewController::RatingViewController(PreferenceStore& preferences, const OnlineTest& onlineTest,
                                           std::function<void()> openRatingPage)
    : policy_(preferences), onlineTest_(onlineTest), openRatingPage_(std::move(openRatingPage)) {
  setPresentationStyle(PresentationStyle::OverCurrentContext);
}

QString RatingViewController::title() const {
  return localized("Rate");
}

void RatingViewController::presentIfNeeded(ViewController& page) {
  if (!policy_.countVisit()) return;
  viewController_ = &page;
  const auto present = [self = shared_from_this()] {
    if (!self->viewController_) fatalStop("the rating has no page to come up over");
    if (QQmlEngine* engine = self->viewController_->engine())
      self->setPage(*engine, QStringLiteral("remote/rating/RatingPage.qml"));
    self->viewController_->present(self);
  };
  QMetaObject::invokeMethod(&page, present, Qt::QueuedConnection);
}

void RatingViewController::viewDidLoad() {
  ViewController::viewDidLoad();
  if (view()) ColorManager::applyStyleToSubviews(*view());
  policy_.didShow();
}

void RatingViewController::tappedCancelRatingButton() {
  Analytics::logEvent(events::tappedRatedAppCancel);
  dismiss([self = shared_from_this()] { self->policy_.startAgain(); });
}

void RatingViewController::tappedSendRatingButton() {
  Analytics::logEvent(events::tappedRatedApp, QVariantMap{{QStringLiteral("app"), QString(applicationCode)},
                                                          {QStringLiteral("rating"), rating}});
  dismiss([self = shared_from_this()] { self->send(); });
}

void RatingViewController::send() {
  if (rating < highRating) return finish();
  if (!viewController_) return;
  viewController_->runWhenOnline(
      [self = shared_from_this()] {
        self->openRatingPage_();
        self->finish();
      },
      [self = shared_from_this()] { self->policy_.startAgain(); }, onlineTest_);
}

void RatingViewController::finish() {
  policy_.finish();
  if (viewController_)
    viewController_->presentAlert(localized("Thanks"), QString(), {{localized("Close")}}, AlertStyle::alert);
}

}  // namespace tavi
