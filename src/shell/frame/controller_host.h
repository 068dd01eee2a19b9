#pragma once

#include <QPointer>
#include <QQuickItem>
#include <memory>
#include <vector>

#include "appearance/pane.h"
#include "shell/frame/view_controller.h"

namespace tavi {

/// The place in a layout where a controller's view is shown, filling it. Over the window it shows what the
/// controller presents. It wants to be as high as the view does.
class ControllerHost : public tavi::Pane {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(tavi::ViewController* controller READ controller WRITE setController NOTIFY controllerChanged)

 public:
  using Pane::Pane;
  ~ControllerHost() override;

  ViewController* controller() const { return controller_; }
  void setController(ViewController* controller);

  /// Also covered as long as something is presented over the window.
  bool isCovered() const override;

 signals:
  void controllerChanged();

 protected:
  void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;

 private:
  void attachView();
  void detachView();
  void showPresented();

  QPointer<ViewController> controller_;
  QPointer<QQuickItem> view_;
  QPointer<ViewController> presented_;
  std::unique_ptr<QObject> popup_;
  std::vector<std::unique_ptr<QObject>> leaving_;
};

}  // namespace tavi
