#pragma once

#include "shell/frame/view_controller.h"

namespace tavi {

/// A drawing with a title and a text, all three by one key: drawing KEY, words "KEYTitle" and "KEYText".
class InformationViewController : public tavi::ViewController {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the application")
  Q_PROPERTY(QString infoKey READ infoKey CONSTANT)
  Q_PROPERTY(QString label READ title CONSTANT)
  Q_PROPERTY(QString text READ text CONSTANT)

 public:
  explicit InformationViewController(QString infoKey) : infoKey_(std::move(infoKey)) {}

  QString infoKey() const { return infoKey_; }
  QString title() const override;
  QString text() const;

 private:
  QString infoKey_;
};

}  // namespace tavi
