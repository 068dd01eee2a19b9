#include "shell/frame/window_messages.h"

#include <QGuiApplication>
#include <QWindow>

#include "shell/frame/alert_controller.h"
#include "shell/frame/view_manager.h"

namespace tavi {

namespace {

void presentAlertOverWindow(const QString& title, const QString& text) {
  for (const QWindow* window : QGuiApplication::topLevelWindows()) {
    auto* root = window->property("rootController").value<ViewController*>();
    if (root) return root->presentAlert(title, text, {}, AlertStyle::alert);
  }
}

}  // namespace

MessagePresenter messagesOverWindow() {
  return {.showToast = [](const QString& text) { ViewManager::showToast(text); },
          .presentAlert = presentAlertOverWindow,
          .hideToast = ViewManager::hideToast};
}

}  // namespace tavi
