#pragma once

#include <QGuiApplication>
#include <QQmlEngine>
#include <memory>

#include "shell/app_delegate.h"

namespace tavi {

/// The running application: names, translations, appearance, the QML engine and the delegate.
class Application : public QGuiApplication {
  Q_OBJECT

 public:
  Application(int& argumentCount, char** arguments);
  ~Application() override;

  /// Opens the window.
  void launch();

  AppDelegate& delegate() { return delegate_; }
  QQmlEngine& engine() { return engine_; }

 private:
  QQmlEngine engine_;
  AppDelegate delegate_;
};

}  // namespace tavi
