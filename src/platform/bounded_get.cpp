#include "platform/bounded_get.h"

#include <QNetworkReply>
#include <QTimer>
#include <utility>

#include "platform/network_access.h"

namespace tavi {
namespace {

constexpr qint64 readBuffer = 64LL * 1024;
constexpr int redirectLimit = 5;
constexpr int statusOk = 200;
constexpr int statusNotModified = 304;

// One exchange; lives and dies with its reply.
class Exchange : public QObject {
 public:
  Exchange(QNetworkReply* reply, const HttpBounds& bounds, std::function<void(const HttpAnswer&)> completion)
      : QObject(reply), reply_(reply), bounds_(bounds), completion_(std::move(completion)) {
    // Beyond this the network waits until something was taken: an answer without a length or end fills no
    // memory.
    reply->setReadBufferSize(readBuffer);
    connect(reply, &QNetworkReply::redirected, this, &Exchange::judgeRedirect);
    connect(reply, &QNetworkReply::readyRead, this, &Exchange::collect);
    connect(reply, &QNetworkReply::finished, this, &Exchange::finish);
    QTimer::singleShot(bounds.timeout, this, [this] { giveUp(QStringLiteral("the server took too long")); });
  }

 private:
  void judgeRedirect(const QUrl& target) {
    if (bounds_.allows(target))
      emit reply_->redirectAllowed();
    else
      giveUp(QStringLiteral("a redirect to an insecure address"));
  }

  void collect() {
    answer_.body += reply_->read(bounds_.bodyLimit + 1 - answer_.body.size());
    if (answer_.body.size() > bounds_.bodyLimit) giveUp(QStringLiteral("the answer is too long"));
  }

  // An aborted reply would complain of a failure that the network's thread has told meanwhile.
  void giveUp(const QString& reason) {
    reply_->disconnect(this);
    answer_.error = reason;
    finish();
  }

  void finish() {
    if (!answer_.error) collect();
    answer_.status = reply_->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    answer_.entityTag = reply_->rawHeader("ETag");
    if (!answer_.error && reply_->error() != QNetworkReply::NoError) answer_.error = reply_->errorString();
    if (!answer_.error && answer_.status != statusOk && answer_.status != statusNotModified)
      answer_.error = QStringLiteral("status %1").arg(answer_.status);
    reply_->deleteLater();
    if (const auto complete = std::exchange(completion_, nullptr)) complete(answer_);
  }

  QNetworkReply* reply_;
  HttpBounds bounds_;
  std::function<void(const HttpAnswer&)> completion_;  // none any more once it is told
  HttpAnswer answer_;
};

}  // namespace

bool HttpBounds::allows(const QUrl& address) const {
  return address.scheme() == u"https" || (allowsLoopbackHttp && isLoopbackHttp(address));
}

void boundedGet(QNetworkAccessManager& access, QNetworkRequest request, const HttpBounds& bounds,
                std::function<void(const HttpAnswer&)> completion) {
  request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::UserVerifiedRedirectPolicy);
  request.setMaximumRedirectsAllowed(redirectLimit);
  request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
  request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
  // A named encoding keeps Qt from unpacking on its own: what is counted is what came over the wire.
  request.setRawHeader("Accept-Encoding", "identity");
  request.setRawHeader("Accept-Language", "*");  // Qt would tell the user's.
  QNetworkReply* reply = access.get(request);
  new Exchange(reply, bounds, std::move(completion));
}

}  // namespace tavi
