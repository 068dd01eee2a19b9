#include "platform/network_access.h"

#include <QHostAddress>

namespace tavi {

std::unique_ptr<QNetworkAccessManager> makeNetworkAccess() {
  return std::make_unique<QNetworkAccessManager>();
}

bool isLoopbackHttp(const QUrl& address) {
  return address.scheme() == u"http" &&
         (address.host() == u"localhost" || QHostAddress(address.host()).isLoopback());
}

}  // namespace tavi
