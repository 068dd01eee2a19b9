#include "platform/single_instance.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QThread>

namespace tavi {

namespace {

// What is asked is a line: a word, what a desktop wants to see of one who is allowed to come to the front,
// and the arguments. A line is no longer than all arguments that a system hands a program.
const QByteArray request = "show";
constexpr qint64 requestLimit = 4L * 1024 * 1024;
constexpr const char* activationToken = "XDG_ACTIVATION_TOKEN";

}  // namespace

SingleInstance::SingleInstance(const QString& folder, std::chrono::milliseconds patience)
    : patience_(patience), socketPath_(folder + "/instance.socket"), lock_(folder + "/instance.lock") {
  QDir().mkpath(folder);
  // A lock is as old as its process; that of a dead one counts for nothing.
  lock_.setStaleLockTime(0);
  connect(&server_, &QLocalServer::newConnection, this, &SingleInstance::answer);
}

bool SingleInstance::isFirst(const QStringList& arguments) {
  const QDeadlineTimer deadline(patience_);
  while (!deadline.hasExpired()) {
    if (lock_.tryLock()) {
      listen();
      return true;
    }
    if (lock_.error() != QLockFile::LockFailedError) return true;
    if (isShownByFirst(arguments)) return false;
    // The other one is about to listen, or about to end.
    QThread::msleep(20);
  }
  return true;
}

void SingleInstance::retire() {
  server_.close();
  for (QLocalSocket* socket : server_.findChildren<QLocalSocket*>()) socket->abort();
}

void SingleInstance::listen() {
  QLocalServer::removeServer(socketPath_);
  server_.setSocketOptions(QLocalServer::UserAccessOption);
  server_.listen(socketPath_);
}

bool SingleInstance::isShownByFirst(const QStringList& arguments) {
  QLocalSocket socket;
  socket.connectToServer(socketPath_);
  const int milliseconds = static_cast<int>(patience_.count());
  if (!socket.waitForConnected(milliseconds)) return false;
  const QByteArray written =
      QJsonDocument(QJsonArray::fromStringList(arguments)).toJson(QJsonDocument::Compact);
  socket.write(request + ' ' + qgetenv(activationToken) + ' ' + written + '\n');
  return socket.waitForReadyRead(milliseconds);
}

void SingleInstance::answer() {
  QLocalSocket* socket = server_.nextPendingConnection();
  connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
  connect(socket, &QLocalSocket::readyRead, this, [this, socket] { read(*socket); });
}

void SingleInstance::read(QLocalSocket& socket) {
  if (!socket.canReadLine()) {
    if (socket.bytesAvailable() >= requestLimit) socket.abort();
    return;
  }
  const QList<QByteArray> asked = socket.readLine(requestLimit).trimmed().split(' ');
  const QJsonDocument arguments = QJsonDocument::fromJson(asked.mid(2).join(' '));
  if (asked.front() == request && arguments.isArray()) {
    qputenv(activationToken, asked[1]);
    emit shown(arguments.toVariant().toStringList());
    socket.write("shown");
  }
  socket.disconnectFromServer();
}

}  // namespace tavi
