#include "remote/rating/rating_policy.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tavi {
namespace {

/// What happens in one process, letter by letter: "v" a visit that asks nothing, "V" one that asks, "s" the
/// question is on the screen, "c" it is put off, "d" it is answered.
void go(RatingPolicy& policy, std::string_view process) {
  for (const char each : process) {
    switch (each) {
      case 's':
        policy.didShow();
        break;
      case 'c':
        policy.startAgain();
        break;
      case 'd':
        policy.finish();
        break;
      default:
        EXPECT_EQ(policy.countVisit(), each == 'V') << process;
    }
  }
}

TEST(RatingPolicyTest, AsksOnTheFifthVisitOnceInAProcessAndNeverAfterAnAnswer) {
  const struct {
    std::vector<std::string_view> processes;
    std::optional<qlonglong> stored;
    qlonglong left;
  } cases[] = {
      {{"v"}, {}, 4},
      {{"vvvv"}, {}, 1},
      {{"vvvvV"}, {}, 0},
      {{"vv", "vv", "Vsc"}, {}, 5},
      {{"vvvvVscvvvvvv"}, {}, 5},
      {{"vvvvVsc", "vvvvVs"}, {}, 0},
      {{"vvvvVsdv", "vvvvvvv"}, {}, 0},
      {{"VV"}, 0, -2},
      {{"V", "V", "Vs", "Vsc", "v"}, 0, 4},
      {{"V"}, std::numeric_limits<qlonglong>::min(), std::numeric_limits<qlonglong>::min()},
  };
  for (const auto& [processes, stored, left] : cases) {
    const QTemporaryDir folder;
    PreferenceStore preferences(folder.filePath("preferences.sqlite"));
    if (stored) preferences.setValue("counterForRating", *stored);
    for (const std::string_view process : processes) {
      RatingPolicy policy(preferences);
      go(policy, process);
    }
    EXPECT_EQ(preferences.variant("counterForRating"), left) << processes.front();
  }
}

TEST(RatingPolicyTest, TheFirstReadingWritesTheWholeCount) {
  const QTemporaryDir folder;
  PreferenceStore preferences(folder.filePath("preferences.sqlite"));
  EXPECT_EQ(RatingPolicy(preferences).counterForRating(), 5);
  EXPECT_EQ(preferences.variant("counterForRating"), 5);
  preferences.setValue("counterForRating", "many");
  EXPECT_EQ(RatingPolicy(preferences).counterForRating(), 5) << "a text is no count";
}

}  // namespace
}  // namespace tavi
