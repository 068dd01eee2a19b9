#pragma once

#include <QList>
#include <QMap>
#include <QStringList>
#include <optional>
#include <vector>

#include "output/string_output.h"
#include "shell/view_controller.h"

namespace tavi {

class AppPageTabBarController;

/// The second page: one solved problem as a table of steps, with the buttons to share it and to open the
/// manual.
class SolutionViewController : public AdHandlingViewController {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the application")

 public:
  /// Posted by the calculate screen when the page shall forget its solution.
  static constexpr QLatin1StringView clearCurrentCalculation{"ClearCurrentCalculationNotification"};

  SolutionViewController();

  /// Fills the solution page of the tabs (page 1) and opens it; nothing without tabs or steps. Fewer than two
  /// pages is a fatal stop. Heights are in device-independent pixels, those of single rows by row index.
  static void showSolution(AppPageTabBarController* tabs, std::optional<SolutionSteps> solutionSteps,
                           const QString& manualImageName, std::optional<QMap<int, double>> configuredRowHeight,
                           double rowHeight);

  /// Forgets the solution; the page is empty and its tab cannot be opened.
  void handleClearAllButton();

  const SolutionSteps& solutionSteps() const { return solutionSteps_; }

 private:
  SolutionSteps solutionSteps_;
};

}  // namespace tavi
