#include "shell/frame/view_manager.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QQuickWindow>
#include <utility>

#include "appearance/interface_fonts.h"
#include "appearance/view.h"

namespace tavi {

namespace {

bool isInPopup(const QQuickItem* item) {
  while (item && !item->inherits("QQuickOverlay")) item = item->parentItem();
  return item != nullptr;
}

}  // namespace

ViewManager::ViewManager() {
  connect(qGuiApp, &QGuiApplication::focusObjectChanged, this, [this](QObject* object) {
    auto* item = qobject_cast<QQuickItem*>(object);
    if (item && item->parentItem() && !isInPopup(item)) pageFocus_ = item;
  });
}

ViewManager& ViewManager::shared() {
  static ViewManager manager;
  return manager;
}

ViewManager* ViewManager::create(QQmlEngine*, QJSEngine*) {
  QQmlEngine::setObjectOwnership(&shared(), QQmlEngine::CppOwnership);
  return &shared();
}

void ViewManager::showToast(const QString& text, ToastAction action) {
  if (text.isEmpty() && shared().toastText_.isEmpty()) return;
  shared().toastText_ = text;
  shared().toastAction_ = std::move(action);
  emit shared().toastChanged();
}

void ViewManager::chooseToastAction() {
  const auto handler = shared().toastAction_.handler;
  hideToast();
  if (handler) handler();
}

void ViewManager::announce(QQuickItem* item) {
  QAccessibleEvent event(item, QAccessible::Alert);
  QAccessible::updateAccessibility(&event);
}

void ViewManager::showSpinner() {
  QMetaObject::invokeMethod(&shared(), [] { shared().setSpinnerVisible(true); });
}

void ViewManager::hideSpinner() {
  QMetaObject::invokeMethod(&shared(), [] { shared().setSpinnerVisible(false); });
}

void ViewManager::restoreFocus(QQuickItem* otherwise) {
  QQuickItem* last = shared().pageFocus_;
  const bool isGone = !last || !last->window();
  if (isGone) last = otherwise;
  // A window behind another has no active item, but knows what is to have the focus in it.
  if (!last || isInPopup(last->window()->contentItem()->scopedFocusItem())) return;
  if (isGone && last->window()->activeFocusItem() != last->window()->contentItem()) return;
  // What was answered may have hidden it, as it does the lock over the videos.
  if (!last->isVisible() || !last->isEnabled()) last = last->nextItemInFocusChain(false);
  last->forceActiveFocus(Qt::PopupFocusReason);
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

QFont ViewManager::toastFont() {
  return InterfaceFont::book(14);
}

void ViewManager::setSpinnerVisible(bool isVisible) {
  if (isSpinnerVisible_ == isVisible) return;
  isSpinnerVisible_ = isVisible;
  emit spinnerChanged();
}

}  // namespace tavi
