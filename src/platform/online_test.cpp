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
  return QUrl(QStringLiteral("https://www.wikipedia.org/"));
}

void OnlineTest::run(QObject* context, Completion completion) const {
  QNetworkRequest request(address_);
  request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
  request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);

  QNetworkAccessManager* access = makeAccess_().release();
  access->setParent(context);
  QNetworkReply* reply = access->get(request);
  const auto isAnswered = [reply] {
    return reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).isValid();
  };
  // The head of an answer settles the question; its body is not waited for.
  QObject::connect(reply, &QNetworkReply::metaDataChanged, reply, [reply, isAnswered] {
    if (isAnswered()) reply->abort();
  });
  QTimer::singleShot(timeout_, reply, &QNetworkReply::abort);
  QObject::connect(reply, &QNetworkReply::finished, access,
                   [access, isAnswered, completion = std::move(completion)] {
                     access->deleteLater();
                     completion(isAnswered());
                   });
}

}  // namespace tavi
