#pragma once

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <memory>
#include <optional>
#include <vector>

#include "measurement/measurement_client.h"
#include "platform/single_instance.h"
#include "shell/launch/app_delegate.h"

namespace tavi {

/// The running application: names, translations, appearance, the QML engine and the delegate.
class Application : public QGuiApplication {
  Q_OBJECT

 public:
  Application(int& argumentCount, char** arguments);
  ~Application() override;

  /// Opens the window, with the task that the arguments behind the program's name ask for. Absent when the
  /// event loop is to run; otherwise the process is to end with this code: where the arguments are wrong,
  /// which standard error tells, or where the application of this user runs already. Then that one's window
  /// comes to the front, and the task goes to it.
  [[nodiscard]] std::optional<int> launch(const QStringList& arguments = {});

  /// What runs the screens; there once the window was opened.
  AppDelegate& delegate() { return *delegate_; }
  QQmlEngine& engine() { return engine_; }

 private:
  /// Begins to read the pages of a start, in a thread of Qt's own, while the main one gets ready.
  void readFirstPages();
  void startMeasuring();
  void show(const QStringList& arguments);

  SingleInstance instance_;
  std::unique_ptr<MeasurementClient> measurement_;  // none where no collector is named
  QQmlEngine engine_;
  std::vector<std::unique_ptr<QQmlComponent>> firstPages_;
  std::optional<AppDelegate> delegate_;
};

}  // namespace tavi
