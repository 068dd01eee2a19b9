#include "platform/test_support.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDebug>
#include <QFile>

#include <sqlite3.h>

void PrintTo(const QString& text, std::ostream* stream) {
  *stream << '"' << text.toStdString() << '"';
}

void PrintTo(const QVariant& value, std::ostream* stream) {
  QString text;
  QDebug(&text) << value;
  *stream << text.toStdString();
}

namespace tavi {
namespace {

QStringList& consoleLines() {
  static QStringList lines;
  return lines;
}

}  // namespace

bool waitUntil(const std::function<bool()>& condition) {
  const QDeadlineTimer deadline(std::chrono::minutes(1));
  while (!condition() && !deadline.hasExpired())
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
  return condition();
}

ConsoleLines::ConsoleLines() {
  consoleLines().clear();
  qInstallMessageHandler(
      [](QtMsgType, const QMessageLogContext&, const QString& line) { consoleLines().append(line); });
}

ConsoleLines::~ConsoleLines() {
  qInstallMessageHandler(nullptr);
}

const QStringList& ConsoleLines::lines() const {
  return consoleLines();
}

QStringList runSql(const QString& path, const QByteArray& sql) {
  sqlite3* database = nullptr;
  sqlite3_open(QFile::encodeName(path).constData(), &database);
  QStringList rows;
  const auto collect = [](void* list, int, char** columns, char**) {
    static_cast<QStringList*>(list)->append(QString::fromUtf8(columns[0]));
    return 0;
  };
  char* error = nullptr;
  if (sqlite3_exec(database, sql.constData(), collect, &rows, &error) != SQLITE_OK)
    rows = {QString::fromUtf8(error)};
  sqlite3_free(error);
  sqlite3_close(database);
  return rows;
}

LoopbackServer::LoopbackServer(Handler handler) : handler_(std::move(handler)) {
  QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] {
    QTcpSocket* socket = server_.nextPendingConnection();
    QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] { read(socket); });
    QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
  });
  server_.listen(QHostAddress::LocalHost);
}

QUrl LoopbackServer::address() const {
  return QUrl(QStringLiteral("http://127.0.0.1:%1/").arg(server_.serverPort()));
}

void LoopbackServer::answer(QTcpSocket& socket, const QByteArray& status, const QByteArray& body,
                            const QByteArray& furtherHead) {
  socket.write("HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(body.size()) +
               "\r\nConnection: close\r\n" + furtherHead + "\r\n" + body);
  socket.disconnectFromHost();
}

void LoopbackServer::read(QTcpSocket* socket) {
  const QByteArray request = socket->peek(64 * 1024);
  if (!request.contains("\r\n\r\n")) return;
  requests_.append(socket->readAll());
  handler_(request, *socket);
}

}  // namespace tavi
