#pragma once

#include <QByteArray>
#include <QNetworkAccessManager>
#include <QNetworkRequest>
#include <chrono>
#include <functional>
#include <optional>

namespace tavi {

/// What a server may ask of us in one answer.
struct HttpBounds {
  std::chrono::milliseconds timeout;  ///< For the whole exchange, redirects included.
  qint64 bodyLimit;                   ///< Bytes.
  bool allowsLoopbackHttp;            ///< Whether http to this machine passes beside https.

  bool allows(const QUrl& address) const;
};

/// An answer with status 200 or 304, or the reason why there is none.
struct HttpAnswer {
  int status = 0;
  QByteArray body;
  QByteArray entityTag;
  std::optional<QString> error;
};

/// Sends a GET request through the access manager and answers later, once, within the bounds. No answer comes
/// if the access manager is destroyed before.
void boundedGet(QNetworkAccessManager& access, QNetworkRequest request, const HttpBounds& bounds,
                std::function<void(const HttpAnswer&)> completion);

}  // namespace tavi
