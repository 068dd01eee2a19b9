#include "shell/frame/view_manager.h"

#include <QCoreApplication>

#include "appearance/interface_fonts.h"
#include "appearance/view.h"

namespace tavi {

ViewManager& ViewManager::shared() {
  static ViewManager manager;
  return manager;
}

ViewManager* ViewManager::create(QQmlEngine*, QJSEngine*) {
  QQmlEngine::setObjectOwnership(&shared(), QQmlEngine::CppOwnership);
  return &shared();
}

void ViewManager::showToast(const QString& text) {
  emit shared().toastRequested(text);
}

void ViewManager::showSpinner() {
  QMetaObject::invokeMethod(&shared(), [] { shared().setSpinnerVisible(true); });
}

void ViewManager::hideSpinner() {
  QMetaObject::invokeMethod(&shared(), [] { shared().setSpinnerVisible(false); });
}

void ViewManager::prepareSegmentedControls(const QQuickItem& item) {
  for (const QQuickItem* subview : View::subviews(item)) {
    const View::Kind kind = View::of(subview)->kind();
    if (kind == View::Kind::Plain || kind == View::Kind::Stack) prepareSegmentedControls(*subview);
    if (kind != View::Kind::SegmentedControl) continue;
    for (const QQuickItem* segment : View::subviews(*subview)) {
      for (QQuickItem* picture : View::subviews(*segment)) {
        constexpr int preserveAspectFit = 1;  // QML: Image.PreserveAspectFit
        if (View::of(picture)->kind() == View::Kind::Image)
          picture->setProperty("fillMode", preserveAspectFit);
      }
    }
  }
}

QFont ViewManager::toastFont() const {
  return InterfaceFont::book(14);
}

void ViewManager::setSpinnerVisible(bool isVisible) {
  if (isSpinnerVisible_ == isVisible) return;
  isSpinnerVisible_ = isVisible;
  emit spinnerChanged();
}

}  // namespace tavi
