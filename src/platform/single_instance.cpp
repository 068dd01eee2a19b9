#include "platform/single_instance.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QLocalSocket>
#include <QThread>

namespace tavi {

namespace {

// What is asked, and behind it what a desktop wants to see of one who is allowed to come to the front.
const QByteArray request = "show ";
constexpr qint64 requestLimit = 1024;
constexpr const char* activationToken = "XDG_ACTIVATION_TOKEN";

}  // namespace

SingleInstance::SingleInstance(const QString& folder, std::chrono::milliseconds patience)
    : patience_(patience), socketPath_(folder + "/instance.socket"), lock_(folder + "/instance.lock") {
  QDir().mkpath(folder);
  // A lock is as old as its process; that of a dead one counts for nothing.
  lock_.setStaleLockTime(0);
  connect(&server_, &QLocalServer::newConnection, this, &SingleInstance::answer);
}

bool SingleInstance::isFirst() {
  const QDeadlineTimer deadline(patience_);
  while (!deadline.hasExpired()) {
    if (lock_.tryLock()) {
      listen();
      return true;
    }
    if (lock_.error() != QLockFile::LockFailedError) return true;
    if (isShownByFirst()) return false;
    // The other one is about to listen, or about to end.
    QThread::msleep(20);
  }
  return true;
}

void SingleInstance::listen() {
  QLocalServer::removeServer(socketPath_);
  server_.setSocketOptions(QLocalServer::UserAccessOption);
  server_.listen(socketPath_);
}

bool SingleInstance::isShownByFirst() {
  QLocalSocket socket;
  socket.connectToServer(socketPath_);
  const int milliseconds = static_cast<int>(patience_.count());
  if (!socket.waitForConnected(milliseconds)) return false;
  socket.write(request + qgetenv(activationToken));
  return socket.waitForReadyRead(milliseconds);
}

void SingleInstance::answer() {
  QLocalSocket* socket = server_.nextPendingConnection();
  connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
  connect(socket, &QLocalSocket::readyRead, this, [this, socket] {
    const QByteArray asked = socket->read(requestLimit);
    if (asked.startsWith(request)) {
      qputenv(activationToken, asked.sliced(request.size()));
      emit shown();
      socket->write("shown");
    }
    socket->disconnectFromServer();
  });
}

}  // namespace tavi
