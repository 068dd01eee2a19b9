#pragma once

#include <QNetworkAccessManager>
#include <QUrl>
#include <functional>
#include <memory>

namespace tavi {

/// Makes the object through which a service reaches the network; tests put their own in its place.
using NetworkAccessFactory = std::function<std::unique_ptr<QNetworkAccessManager>()>;

/// An ordinary access manager, without cookies, cache or memory of its own.
std::unique_ptr<QNetworkAccessManager> makeNetworkAccess();

/// True for http on 127.0.0.0/8, ::1 or "localhost".
bool isLoopbackHttp(const QUrl& address);

}  // namespace tavi
