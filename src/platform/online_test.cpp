#include "platform/online_test.h"

#include <QNetworkReply>
#include <QTimer>

namespace tavi {

OnlineTest& OnlineTest::shared() {
  static OnlineTest test;
  return test;
}

OnlineTest::OnlineTest(QUrl address, std::chrono::milliseconds timeout, NetworkAccessFactory makeAccess)
    : address_(std::move(address)), timeout_(timeout), makeAccess_(std::move(makeAccess)) {}

QUrl OnlineTest::standardAddress() {
  return {QStringLiteral("https://www.wikipedia.org/")};
}

void OnlineTest::run(QObject* context, Completion completion) const {
  QNetworkRequest request(address_);
  request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
  request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);

  QNetworkAccessManager* access = makeAccess_().release();
  access->setParent(context);
  QNetworkReply* reply = access->get(request);
  // The head of an answer settles the question; its body is not waited for.
  const auto judge = [reply, access, completion = std::move(completion)] {
    const bool isOnline = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).isValid();
    if (!isOnline && !reply->isFinished()) return;
    reply->disconnect(access);
    // The completion may end the context, and the access manager must outlive this signal.
    access->setParent(nullptr);
    access->deleteLater();
    completion(isOnline);
  };
  QObject::connect(reply, &QNetworkReply::metaDataChanged, access, judge);
  QObject::connect(reply, &QNetworkReply::finished, access, judge);
  QTimer::singleShot(timeout_, reply, &QNetworkReply::abort);
}

}  // namespace tavi
