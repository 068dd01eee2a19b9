#pragma once

#include "platform/preferences.h"

namespace tavi {

/// When the user is asked how he likes the application: after so many visits of the input page, at most once
/// in a process, and never again once he has answered.
class RatingPolicy {
 public:
  /// The store must live longer.
  explicit RatingPolicy(PreferenceStore& preferences) : preferences_(preferences) {}

  /// Counts a visit; true when it is time to ask.
  bool countVisit();

  /// The question has been on the screen.
  void didShow() { isShownInSession_ = true; }
  bool isShownInSession() const { return isShownInSession_; }

  /// The user answered: no more questions.
  void finish() { preferences_.setValue(preferences::isRatingAlreadyDone, true); }

  /// The user did not get to answer: the visits are counted from the beginning, from the next process on.
  void startAgain() { setCounter(preferences::counterForRating.fallback); }

  /// Visits left, from the store; the first reading on a device writes it there. Below 1 it is time to ask.
  qlonglong counterForRating();

 private:
  void setCounter(qlonglong counter);

  PreferenceStore& preferences_;
  bool isShownInSession_ = false;
  qlonglong counterForRating_ = preferences::counterForRating.fallback;
};

}  // namespace tavi
