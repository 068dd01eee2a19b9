#pragma once

#include <memory>
#include <span>

#include "platform/preferences.h"
#include "remote/introduction/onboard_view_controller.h"

namespace tavi {

/// What stands on a page, before it is translated.
struct PageDescription {
  const char* title;
  const char* imageName;
  const char* note;         ///< Empty on all pages.
  const char* description;  ///< Key of its words.
};

/// The pages of the application's two sequences, and their look.
class OnboardingManager {
 public:
  OnboardingManager() = delete;

  /// What the application does and how; five pages.
  static std::span<const PageDescription> mainPages();

  /// What the videos are and what their lock means; five pages.
  static std::span<const PageDescription> videoPages();

  /// In the user's language, with the application's title in straight double quotes for every "§appname". The
  /// last page's button says that it starts now.
  static QList<OnboardPage> onboardingPageItems(std::span<const PageDescription> pages);

  static OnboardAppearance onboardingAppearance();

  /// The introduction; once it was seen to the end, that is stored.
  static std::shared_ptr<OnboardViewController> introduction(PreferenceStore& preferences);

  /// The guide to the videos, as a form sheet; stores the same.
  static std::shared_ptr<OnboardViewController> videoGuide(PreferenceStore& preferences);
};

}  // namespace tavi
