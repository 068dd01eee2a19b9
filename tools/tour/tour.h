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
  bool isFirstStart = false;  ///< Nothing was answered before.
};

std::span<const Visit> allVisits();

// Solutions with charts.
void lineCharts(Stage& stage);
void stepCharts(Stage& stage);
void movingCircle(Stage& stage);
void restingCircle(Stage& stage);
void sharedCharts(Stage& stage);

// Stations around the calculation.
void firstConsent(Stage& stage);
void introductionPage1(Stage& stage);
void introductionPage2(Stage& stage);
void introductionPage3(Stage& stage);
void introductionPage4(Stage& stage);
void introductionPage5(Stage& stage);
void menuIntroduction(Stage& stage);
void settings(Stage& stage);
void inputManual(Stage& stage);
void solutionManual(Stage& stage);
void lockedVideos(Stage& stage);
void videoConsent(Stage& stage);
void videoGuide(Stage& stage);
void readyVideos(Stage& stage);
void unknownVideo(Stage& stage);
void advertisement(Stage& stage);
void rating(Stage& stage);

}  // namespace tavi::tour
