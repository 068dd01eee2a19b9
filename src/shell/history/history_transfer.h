#pragma once

#include <QCoroTask>
#include <QObject>
#include <QQmlEngine>
#include <QUrl>
#include <variant>

#include "platform/notification_center.h"
#include "shell/calc_manager.h"
#include "shell/frame/view_controller.h"
#include "shell/history_file.h"

namespace tavi {

/// Takes the history out into a file and in from one, for the page that offers it and belongs to it.
class HistoryTransfer : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Part of a page")
  Q_PROPERTY(bool hasFileDialog READ hasFileDialog CONSTANT)
  Q_PROPERTY(QUrl folder READ folder CONSTANT)

 public:
  HistoryTransfer(ViewController& page, CalcManager& store, NotificationCenter& notifications)
      : page_(page), store_(store), notifications_(notifications) {}

  /// Whether the desktop has a dialog of its own to choose files with.
  static bool hasFileDialog();

  /// Where the user keeps documents.
  static QUrl folder();

  /// A file in there that is not there yet, named after the application and the day.
  Q_INVOKABLE static QUrl proposedFile();

  /// Writes all of the history to the file and tells where it is, or why it cannot. Only local files.
  Q_INVOKABLE void exportTo(const QUrl& file);

  /// Puts the tasks of the file behind those of the history and offers to undo that; if anything is wrong
  /// with the file, says so and changes nothing.
  Q_INVOKABLE void importFrom(const QUrl& file);

  /// Without a dialog: lets the user choose among the files that are in the folder, the newest first.
  Q_INVOKABLE void chooseFile();

 private:
  QCoro::Task<> write(QString path);
  QCoro::Task<> read(QString path);
  void take(const QList<Calculation>& calculations);
  void say(const QString& text);

  ViewController& page_;
  CalcManager& store_;
  NotificationCenter& notifications_;
};

}  // namespace tavi
