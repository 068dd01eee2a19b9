#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QUrl>
#include <QVariant>
#include <functional>
#include <ostream>

void PrintTo(const QString& text, std::ostream* stream);
void PrintTo(const QVariant& value, std::ostream* stream);

namespace tavi {

/// Runs the event loop until the condition holds; false when it does not within a minute.
bool waitUntil(const std::function<bool()>& condition);

/// Collects what is printed to the console while it lives.
class ConsoleLines {
 public:
  ConsoleLines();
  ~ConsoleLines();
  const QStringList& lines() const;
};

/// Runs SQL on a database file from outside; answers the first column of all rows.
QStringList runSql(const QString& path, const QByteArray& sql);

/// A real HTTP server on this machine that lets the test write the bytes of each answer.
class LoopbackServer {
 public:
  using Handler = std::function<void(const QByteArray& request, QTcpSocket& socket)>;

  explicit LoopbackServer(Handler handler);

  QUrl address() const;
  const QList<QByteArray>& requests() const { return requests_; }
  void setHandler(Handler handler) { handler_ = std::move(handler); }

  /// Writes a whole answer with its length and closes.
  static void answer(QTcpSocket& socket, const QByteArray& status, const QByteArray& body,
                     const QByteArray& furtherHead = {});

 private:
  void read(QTcpSocket* socket);

  Handler handler_;
  QTcpServer server_;
  QList<QByteArray> requests_;
};

}  // namespace tavi
