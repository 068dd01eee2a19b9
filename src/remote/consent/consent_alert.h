#pragma once

#include "shell/frame/alert_controller.h"

namespace tavi {

/// A question that only its buttons answer, and whose keyboard begins at the last one, which allows least.
class ConsentAlert : public tavi::AlertController {
  Q_OBJECT
  QML_ANONYMOUS
  Q_PROPERTY(int firstFocus READ lastAction CONSTANT)

 public:
  using AlertController::AlertController;

  int lastAction() const { return static_cast<int>(actionTitles().size()) - 1; }
  void cancel() override {}
};

}  // namespace tavi
