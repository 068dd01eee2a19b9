#pragma once

#include <QStringList>

#include "shell/frame/view_controller.h"

namespace tavi {

/// One drawing that explains a screen, to be looked at closely, with its numerals in words below it.
class ManualViewController : public tavi::ViewController {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the application")
  Q_PROPERTY(QString imageName READ imageName CONSTANT)
  Q_PROPERTY(QString label READ title CONSTANT)
  Q_PROPERTY(QStringList legend READ legend CONSTANT)

 public:
  /// A name without a drawing leaves the picture empty.
  explicit ManualViewController(QString imageName) : imageName_(std::move(imageName)) {}

  /// Presents the manual over the controller, as a page sheet.
  static void show(ViewController& over, const QString& imageName);

  QString title() const override;
  QString imageName() const { return imageName_; }

  /// What the numerals 1, 2, … in the drawing stand at.
  QStringList legend() const;

 private:
  QString imageName_;
};

}  // namespace tavi
