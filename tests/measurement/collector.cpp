#include "measurement/collector.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <zlib.h>

namespace tavi {
namespace {

QByteArray unpacked(QByteArray packed) {
  QByteArray text(4 * 1024 * 1024, '\0');
  z_stream stream{};
  inflateInit2(&stream, MAX_WBITS + 16);
  stream.next_in = reinterpret_cast<Bytef*>(packed.data());
  stream.avail_in = static_cast<uInt>(packed.size());
  stream.next_out = reinterpret_cast<Bytef*>(text.data());
  stream.avail_out = static_cast<uInt>(text.size());
  inflate(&stream, Z_FINISH);
  text.resize(static_cast<qsizetype>(stream.total_out));
  inflateEnd(&stream);
  return text;
}

}  // namespace

Collector::Collector(Answer answer) : answer_(std::move(answer)) {
  QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] {
    QTcpSocket* socket = server_.nextPendingConnection();
    QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] { read(*socket); });
    QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
  });
  server_.listen(QHostAddress::LocalHost);
}

QUrl Collector::address() const {
  return QUrl(QStringLiteral("http://127.0.0.1:%1/v1/logs").arg(server_.serverPort()));
}

void Collector::read(QTcpSocket& socket) {
  const QByteArray request = socket.peek(4 * 1024 * 1024);
  const qsizetype headEnd = request.indexOf("\r\n\r\n");
  if (headEnd < 0) return;
  const QByteArray head = request.left(headEnd).toLower();
  const qsizetype lengthAt = head.indexOf("content-length: ") + 16;
  const qsizetype length = head.mid(lengthAt, head.indexOf("\r\n", lengthAt) - lengthAt).toLongLong();
  if (request.size() < headEnd + 4 + length) return;
  socket.readAll();
  head_ = head;
  batches_.append(QJsonDocument::fromJson(unpacked(request.mid(headEnd + 4))).object());
  answer_(batches_.size() - 1, socket);
}

QStringList Collector::names() const {
  QStringList names;
  for (const QJsonObject& batch : batches_) {
    const QJsonObject scope = batch["resourceLogs"][0]["scopeLogs"][0].toObject();
    for (const QJsonValue record : scope["logRecords"].toArray()) {
      for (const QJsonValue attribute : record["attributes"].toArray())
        if (attribute["key"] == "taviApp") names.append(attribute["value"]["stringValue"].toString());
    }
  }
  return names;
}

void Collector::say(QTcpSocket& socket, const QByteArray& status, const QByteArray& body,
                    const QByteArray& furtherHead) {
  socket.write("HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(body.size()) +
               "\r\nConnection: close\r\n" + furtherHead + "\r\n" + body);
  socket.disconnectFromHost();
}

}  // namespace tavi
