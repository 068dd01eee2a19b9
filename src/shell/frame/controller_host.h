#pragma once

#include <QPointer>
#include <QQuickItem>
#include <memory>

#include "shell/frame/view_controller.h"

namespace tavi {

/// The place in a layout where a controller's view is shown, filling it, and above it whatever the controller
/// presents.
class ControllerHost : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(tavi::ViewController* controller READ controller WRITE setController NOTIFY controllerChanged)

 public:
  using QQuickItem::QQuickItem;
  ~ControllerHost() override;

  ViewController* controller() const { return controller_; }
  void setController(ViewController* controller);

 signals:
  void controllerChanged();

 protected:
  void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;

 private:
  void detachView();
  void showPresented();

  QPointer<ViewController> controller_;
  QPointer<QQuickItem> view_;
  std::unique_ptr<ControllerHost> presentedHost_;
};

}  // namespace tavi
