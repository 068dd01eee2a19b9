#pragma once

#include <QSize>
#include <span>

#include "tour/stage.h"

namespace tavi::tour {

/// One picture of the tour and how to come to it from any state of the application.
struct Step {
  const char* name;  ///< Of the picture's file, without its suffix.
  void (*act)(Stage& stage);
};

/// What one run of the application shows; its appearance stays as it was launched.
struct Visit {
  const char* name;
  QSize size;  ///< Of the window, in device-independent pixels.
  bool isDark;
  std::span<const Step> steps;
};

std::span<const Visit> allVisits();

}  // namespace tavi::tour
