#include "shell/frame/navigation_drawer_controller.h"

#include <utility>

namespace tavi {

AppNavigationDrawerController::AppNavigationDrawerController(std::shared_ptr<ViewController> root,
                                                             std::shared_ptr<ViewController> left)
    : root_(std::move(root)), left_(std::move(left)) {
  adopt(*root_);
  adopt(*left_);
}

void AppNavigationDrawerController::setLeftViewOpened(bool isOpened) {
  if (isLeftViewOpened_ == isOpened) return;
  isLeftViewOpened_ = isOpened;
  if (isAppearing()) {
    if (isOpened)
      left_->beginAppearance();
    else
      left_->disappear();
  }
  emit leftViewChanged();
  if (isAppearing() && isOpened) left_->endAppearance();
}

void AppNavigationDrawerController::transition(std::shared_ptr<ViewController> to,
                                               const std::function<void()>& completion) {
  replaceChild(root_, std::move(to), [this] { emit rootControllerChanged(); });
  if (completion) completion();
}

std::vector<ViewController*> AppNavigationDrawerController::visibleChildren() const {
  if (isLeftViewOpened_) return {root_.get(), left_.get()};
  return {root_.get()};
}

}  // namespace tavi
