#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QQuickItem>
#include <memory>

#include "shell/navigation_drawer_controller.h"
#include "shell/page_tab_bar_controller.h"
#include "shell/toolbar_controller.h"

namespace tavi {

/// Sets the frame of the application up around two empty pages, for tests that tap on it, as the context
/// property "stage".
class FrameStage : public QObject {
  Q_OBJECT
  Q_PROPERTY(int selectedIndex READ selectedIndex)
  Q_PROPERTY(bool isDrawerOpen READ isDrawerOpen)
  Q_PROPERTY(QString chosen READ chosen)

 public:
  /// A fresh frame that fills the holder.
  Q_INVOKABLE void open(QQuickItem* holder);
  Q_INVOKABLE void close();

  Q_INVOKABLE void enableTab(int index, bool isEnabled);
  Q_INVOKABLE void toast(const QString& text);
  Q_INVOKABLE void spin(bool isSpinning);
  /// Asks with two buttons, "No" and "Yes"; the answer is then `chosen`.
  Q_INVOKABLE void ask();

  int selectedIndex() const { return tabs_->selectedIndex(); }
  bool isDrawerOpen() const { return drawer_->isLeftViewOpened(); }
  QString chosen() const { return chosen_; }

 public slots:
  void qmlEngineAvailable(QQmlEngine* engine);

 private:
  QQmlEngine* engine_ = nullptr;
  QString chosen_;
  std::shared_ptr<AppPageTabBarController> tabs_;
  std::shared_ptr<AppNavigationDrawerController> drawer_;
  std::unique_ptr<QQuickItem> host_;
};

}  // namespace tavi
