#pragma once

#include "shell/frame/view_controller.h"

namespace tavi {

/// The root of the window: the pages, and the side menu that slides over them from the left.
class AppNavigationDrawerController : public tavi::ViewController {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the application")
  Q_PROPERTY(tavi::ViewController* rootController READ rootController NOTIFY rootControllerChanged)
  Q_PROPERTY(tavi::ViewController* leftController READ leftController CONSTANT)
  Q_PROPERTY(bool isLeftViewOpened READ isLeftViewOpened WRITE setLeftViewOpened NOTIFY leftViewChanged)

 public:
  AppNavigationDrawerController(std::shared_ptr<ViewController> root, std::shared_ptr<ViewController> left);

  ViewController* rootController() const { return root_.get(); }
  ViewController* leftController() const { return left_.get(); }

  bool isLeftViewOpened() const { return isLeftViewOpened_; }
  void setLeftViewOpened(bool isOpened);
  Q_INVOKABLE void toggleLeftView() { setLeftViewOpened(!isLeftViewOpened_); }
  void closeLeftView() { setLeftViewOpened(false); }

  /// Puts another controller in the place of the root, then calls the completion.
  void transition(std::shared_ptr<ViewController> to, const std::function<void()>& completion = {});

 signals:
  void rootControllerChanged();
  void leftViewChanged();

 protected:
  std::vector<ViewController*> visibleChildren() const override;

 private:
  std::shared_ptr<ViewController> root_;
  std::shared_ptr<ViewController> left_;
  bool isLeftViewOpened_ = false;
};

}  // namespace tavi
