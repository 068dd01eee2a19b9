#pragma once

#include <QPointer>
#include <functional>
#include <memory>

#include "platform/online_test.h"
#include "remote/rating/rating_policy.h"
#include "shell/frame/view_controller.h"

namespace tavi {

/// Asks over the input page how the user likes the application. Many stars lead to the store, few only to
/// thanks. The application has one, which is shown every time.
class RatingViewController : public tavi::ViewController,
                             public std::enable_shared_from_this<RatingViewController> {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the application")
  Q_PROPERTY(double rating MEMBER rating NOTIFY ratingChanged)
  Q_PROPERTY(QString question READ title CONSTANT)

 public:
  /// Stars from which on the store is opened.
  static constexpr double highRating = 4.0;

  /// What opens the store's page is called once the network is known to be there.
  RatingViewController(PreferenceStore& preferences, const OnlineTest& onlineTest,
                       std::function<void()> openRatingPage);

  /// To be called whenever the input page has appeared; once in a while it brings the question up over it.
  void presentIfNeeded(ViewController& page);

  QString title() const override;

  double rating = 0;  ///< Stars given, up to 5; 0 before the first tap.

  // What the page calls.
  Q_INVOKABLE void tappedCancelRatingButton();
  Q_INVOKABLE void tappedSendRatingButton();

  /// Escape and Back put the question off as the button does.
  void cancel() override { tappedCancelRatingButton(); }

 signals:
  void ratingChanged();

 protected:
  void viewDidLoad() override;

 private:
  void send();
  void finish();

  RatingPolicy policy_;
  const OnlineTest& onlineTest_;
  std::function<void()> openRatingPage_;
  QPointer<ViewController> viewController_;
};

}  // namespace tavi
