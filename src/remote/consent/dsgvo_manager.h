#pragma once

#include <functional>

#include "platform/preferences.h"
#include "shell/frame/view_controller.h"

namespace tavi {

/// Asks for the user's consent and stores the answer. Each question comes up a turn of the event loop later,
/// over the controller that is given, unless that is gone by then.
class DsgvoManager {
 public:
  DsgvoManager() = delete;

  using Answer = std::function<void()>;

  /// The general privacy text. It can only be accepted.
  static void showConsent(ViewController& over, PreferenceStore& preferences, Answer accepted = {});

  /// The text about the outside service that the videos come from.
  static void showYoutubeConsent(ViewController& over, PreferenceStore& preferences, Answer accepted = {},
                                 Answer declined = {});
};

}  // namespace tavi
