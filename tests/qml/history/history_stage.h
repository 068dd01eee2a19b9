#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QQuickItem>
#include <QStringList>
#include <QTemporaryDir>
#include <memory>

#include "shell/frame/navigation_drawer_controller.h"
#include "shell/frame/toolbar_controller.h"
#include "shell/history/history_table_view_controller.h"

namespace tavi {

/// Sets a history up under the frame of the application, for tests that tap on it, as the context property
/// "stage".
class HistoryStage : public QObject {
  Q_OBJECT
  Q_PROPERTY(QStringList stored READ stored)
  Q_PROPERTY(QString picked READ picked)
  Q_PROPERTY(QString clipboard READ clipboard)
  Q_PROPERTY(bool isEditing READ isEditing)
  Q_PROPERTY(bool isHistoryOpen READ isHistoryOpen)

 public:
  /// A fresh history of these tasks, first row first, that fills the holder.
  Q_INVOKABLE void open(QQuickItem* holder, const QStringList& tasks);
  Q_INVOKABLE void close();

  /// What assistive technology is told of the item and of all below it, a line each: role and name.
  Q_INVOKABLE static QStringList told(QObject* item);

  QStringList stored() const;
  QString picked() const;
  static QString clipboard();
  bool isEditing() const { return history_->isEditing(); }
  bool isHistoryOpen() const { return toolbar_ && drawer_->rootController() == toolbar_.get(); }

 public slots:
  void applicationAvailable();
  void qmlEngineAvailable(QQmlEngine* engine);

 private:
  QTemporaryDir folder_;
  PreferenceStore preferences_{folder_.filePath("preferences.sqlite")};
  CalcManager store_{preferences_};
  QQmlEngine* engine_ = nullptr;
  std::shared_ptr<HistoryTableViewController> history_;
  std::shared_ptr<AppToolbarController> toolbar_;
  std::shared_ptr<AppNavigationDrawerController> drawer_;
  std::unique_ptr<QQuickItem> host_;
};

}  // namespace tavi
