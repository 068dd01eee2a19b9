#include "remote/rating/rating_policy.h"

#include <limits>

namespace tavi {

bool RatingPolicy::countVisit() {
  if (isShownInSession_ || preferences_.value(preferences::isRatingAlreadyDone)) return false;
  const qlonglong counter = counterForRating();
  if (counter > std::numeric_limits<qlonglong>::min()) setCounter(counter - 1);
  return counterForRating() < 1;
}

qlonglong RatingPolicy::counterForRating() {
  if (const auto stored = preferences_.find(preferences::counterForRating))
    counterForRating_ = *stored;
  else
    preferences_.setValue(preferences::counterForRating, counterForRating_);
  return counterForRating_;
}

void RatingPolicy::setCounter(qlonglong counter) {
  counterForRating_ = counter;
  preferences_.setValue(preferences::counterForRating, counter);
}

}  // namespace tavi
