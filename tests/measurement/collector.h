#pragma once

#include <QJsonObject>
#include <QStringList>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>
#include <functional>

namespace tavi {

/// A collector on this machine: takes batches as an OpenTelemetry collector would and answers as the test
/// says.
class Collector {
 public:
  /// What is written to the socket after the n-th batch, the first being 0.
  using Answer = std::function<void(qsizetype batch, QTcpSocket& socket)>;

  explicit Collector(Answer answer);

  QUrl address() const;

  /// Requests as they came in, unpacked.
  const QList<QJsonObject>& batches() const { return batches_; }
  const QByteArray& lastHead() const { return head_; }

  /// What stood in the parameter "taviApp" of the events received, in order.
  QStringList names() const;

  /// A whole answer; "200 OK" and "{}" is what a collector that took everything says.
  static void say(QTcpSocket& socket, const QByteArray& status = "200 OK", const QByteArray& body = "{}",
                  const QByteArray& furtherHead = {});

 private:
  void read(QTcpSocket& socket);

  Answer answer_;
  QTcpServer server_;
  QList<QJsonObject> batches_;
  QByteArray head_;
};

}  // namespace tavi
