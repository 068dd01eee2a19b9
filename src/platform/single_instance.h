#pragma once

#include <QLocalServer>
#include <QLocalSocket>
#include <QLockFile>
#include <QString>
#include <QStringList>
#include <chrono>
#include <functional>

namespace tavi {

/// Lets one process at a time use a folder of the user's own: a later one asks it to show its window, and
/// ends. Two files in the folder stand for that, a lock and a socket.
class SingleInstance : public QObject {
  Q_OBJECT

 public:
  /// A process that finds another one there asks it for so long, and then goes on beside it.
  explicit SingleInstance(const QString& folder,
                          std::chrono::milliseconds patience = std::chrono::seconds(2));

  /// True for the first process and where nothing can be found out. False when another one was there and has
  /// answered that it shows its window, and taken the arguments along. To be called once, before anything in
  /// the folder is opened.
  bool isFirst(const QStringList& arguments = {});

  /// The first one is about to end: a later start is not answered any more, but waits until it may be the
  /// first.
  void retire();

 signals:
  /// In the first process: another one was started, with these arguments.
  void shown(const QStringList& arguments);

 private:
  void listen();
  bool isShownByFirst(const QStringList& arguments);
  void answer();
  void read(QLocalSocket& socket);

  std::chrono::milliseconds patience_;
  QString socketPath_;
  QLockFile lock_;
  QLocalServer server_;
};

}  // namespace tavi
