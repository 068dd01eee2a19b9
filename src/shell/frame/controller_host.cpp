#include "shell/frame/controller_host.h"

#include <QTimer>
#include <utility>

#include "shell/frame/page_loader.h"

namespace tavi {

ControllerHost::~ControllerHost() {
  leaving_.clear();
  popup_.reset();
  if (presented_) presented_->presentationGone();
  detachView();
}

void ControllerHost::setController(ViewController* controller) {
  if (controller_ == controller) return;
  if (controller_) disconnect(controller_, nullptr, this, nullptr);
  detachView();
  controller_ = controller;
  if (controller_) {
    attachView();
    connect(controller_, &ViewController::presentedControllerChanged, this, &ControllerHost::showPresented);
  }
  showPresented();
  emit controllerChanged();
}

bool ControllerHost::isCovered() const {
  return Pane::isCovered() || (controller_ != nullptr && controller_->isCovered());
}

void ControllerHost::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) {
  Pane::geometryChange(newGeometry, oldGeometry);
  if (view_) view_->setSize(newGeometry.size());
}

void ControllerHost::attachView() {
  view_ = controller_->view();
  if (!view_) return;
  view_->setParentItem(this);
  view_->setSize(size());
  const auto follow = [this] { setImplicitHeight(view_->implicitHeight()); };
  connect(view_, &QQuickItem::implicitHeightChanged, this, follow);
  follow();
}

void ControllerHost::detachView() {
  if (view_) disconnect(view_, nullptr, this, nullptr);
  if (view_ && view_->parentItem() == this) view_->setParentItem(nullptr);
  view_ = nullptr;
}

/// A popup goes later, as one of its own buttons may be what ends it, but before its controller.
void ControllerHost::showPresented() {
  ViewController* next = controller_ ? controller_->presentedController() : nullptr;
  if (next == presented_) return;
  if (popup_) {
    leaving_.push_back(std::move(popup_));
    QTimer::singleShot(0, this, [this] { std::exchange(leaving_, {}).clear(); });
  }
  const QPointer<ViewController> last = std::exchange(presented_, next);
  if (last) last->presentationGone();
  if (!next || !next->engine()) return;
  popup_ = loadPageObject(*next->engine(), QStringLiteral("shell/frame/PresentedPopup.qml"),
                          {{QStringLiteral("controller"), QVariant::fromValue(next)},
                           {QStringLiteral("parent"), QVariant::fromValue<QQuickItem*>(this)}});
}

}  // namespace tavi
