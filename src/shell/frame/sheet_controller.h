#pragma once

#include <QString>

#include "shell/frame/view_controller.h"

namespace tavi {

/// A sheet over the window with a title and a way to close it, for a page whose content is still to come.
class SheetController : public ViewController {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the controllers")

 public:
  explicit SheetController(QString title) : title_(std::move(title)) {
    setPresentationStyle(PresentationStyle::FormSheet);
  }

  QString title() const override { return title_; }

 private:
  QString title_;
};

}  // namespace tavi
