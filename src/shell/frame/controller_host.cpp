#include "shell/frame/controller_host.h"

namespace tavi {

ControllerHost::~ControllerHost() {
  detachView();
}

void ControllerHost::setController(ViewController* controller) {
  if (controller_ == controller) return;
  if (controller_) disconnect(controller_, nullptr, this, nullptr);
  detachView();
  controller_ = controller;
  if (controller_) {
    view_ = controller_->view();
    if (view_) {
      view_->setParentItem(this);
      view_->setSize(size());
    }
    connect(controller_, &ViewController::presentedControllerChanged, this, &ControllerHost::showPresented);
  }
  showPresented();
  emit controllerChanged();
}

void ControllerHost::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
  QQuickItem::geometryChange(newGeometry, oldGeometry);
  if (view_) view_->setSize(newGeometry.size());
  if (presentedHost_) presentedHost_->setSize(newGeometry.size());
}

void ControllerHost::detachView() {
  if (view_ && view_->parentItem() == this) view_->setParentItem(nullptr);
  view_ = nullptr;
}

void ControllerHost::showPresented() {
  presentedHost_.reset();
  if (!controller_ || !controller_->presentedController()) return;
  presentedHost_ = std::make_unique<ControllerHost>(this);
  presentedHost_->setSize(size());
  presentedHost_->setController(controller_->presentedController());
}

}  // namespace tavi
