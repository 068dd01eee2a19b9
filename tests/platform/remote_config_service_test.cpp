#include "platform/remote_config_service.h"

#include <QDir>
#include <QFile>
#include <QThread>
#include <QTimer>
#include <atomic>
#include <future>

#include <gtest/gtest.h>

#include "platform/test_support.h"

namespace tavi {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

constexpr seconds now{0};
constexpr seconds sixHours{21'600};

class RemoteConfigServiceTest : public testing::Test {
 protected:
  struct Result {
    FetchStatus status = FetchStatus::noFetchYet;
    std::optional<QString> error;
  };

  RemoteConfigSettings settings() const {
    // An answer comes, on a loaded machine late: no test that waits for one ends by this limit.
    return {.endpoint = server_.address(), .allowsLoopbackHttp = true, .timeout = std::chrono::minutes(2)};
  }

  QString path() const { return folder_.filePath("remote_config.sqlite"); }

  static Result fetch(RemoteConfigService& service, seconds expiry = now) {
    std::optional<Result> result;
    service.fetch(expiry, [&](FetchStatus status, const std::optional<QString>& error) {
      result = {status, error};
    });
    EXPECT_FALSE(result) << "an answer comes later, never from within the call";
    waitUntil([&] { return result.has_value(); });
    return result.value_or(Result());
  }

  static void activate(RemoteConfigService& service) {
    bool isDone = false;
    service.activate([&](bool) { isDone = true; });
    EXPECT_TRUE(waitUntil([&] { return isDone; }));
  }

  void serve(const QByteArray& status, const QByteArray& body, const QByteArray& furtherHead = {}) {
    server_.setHandler([=](const QByteArray&, QTcpSocket& socket) {
      LoopbackServer::answer(socket, status, body, furtherHead);
    });
  }

  QTemporaryDir folder_;
  LoopbackServer server_{[](const QByteArray&, QTcpSocket& socket) {
    LoopbackServer::answer(socket, "200 OK", R"({"apps": "old", "ads": "{\"ä\": []}"})", "ETag: \"one\"\r\n");
  }};
};

TEST_F(RemoteConfigServiceTest, FetchedValuesCountOnceTheyAreActivated) {
  RemoteConfigService service(settings(), path());
  EXPECT_EQ(service.dataValue("apps"), "");
  const Result result = fetch(service);
  EXPECT_EQ(result.status, FetchStatus::success);
  EXPECT_EQ(result.error, std::nullopt);
  EXPECT_EQ(service.dataValue("apps"), "");
  activate(service);
  EXPECT_EQ(service.dataValue("apps"), "old");
  EXPECT_EQ(service.dataValue("ads"), R"({"ä": []})");
  EXPECT_EQ(service.dataValue("unknown"), "");
}

TEST_F(RemoteConfigServiceTest, BothSetsOutliveTheProcess) {
  {
    RemoteConfigService service(settings(), path());
    fetch(service);
    activate(service);
    serve("200 OK", R"({"apps": "new"})");
    fetch(service);
  }
  RemoteConfigService service(settings(), path());
  EXPECT_EQ(service.dataValue("apps"), "old");
  activate(service);
  EXPECT_EQ(service.dataValue("apps"), "new");
  EXPECT_EQ(service.dataValue("ads"), "");
}

TEST_F(RemoteConfigServiceTest, AsksAgainOnlyAfterTheExpiry) {
  {
    RemoteConfigService service(settings(), path());
    fetch(service, sixHours);
  }
  RemoteConfigService service(settings(), path());
  EXPECT_EQ(fetch(service, sixHours).status, FetchStatus::success);
  EXPECT_EQ(server_.requests().size(), 1);
  EXPECT_EQ(fetch(service, now).status, FetchStatus::success);
  EXPECT_EQ(server_.requests().size(), 2);
  service.setMinimumFetchInterval(sixHours);
  fetch(service, now);
  EXPECT_EQ(server_.requests().size(), 2);
}

TEST_F(RemoteConfigServiceTest, AClockThatWasSetBackDoesNotBlock) {
  PreferenceStore(path()).setValue(
      "remoteConfig", QVariantMap{{"lastFetchAt", QDateTime::currentDateTimeUtc().addDays(300)}});
  RemoteConfigService service(settings(), path());
  fetch(service, sixHours);
  EXPECT_EQ(server_.requests().size(), 1);
}

TEST_F(RemoteConfigServiceTest, CallsDuringAFetchShareIt) {
  RemoteConfigService service(settings(), path());
  int answers = 0;
  for (int i = 0; i < 3; ++i)
    service.fetch(now, [&](FetchStatus status, const std::optional<QString>&) {
      answers += status == FetchStatus::success ? 1 : 0;
    });
  EXPECT_TRUE(waitUntil([&] { return answers == 3; }));
  EXPECT_EQ(server_.requests().size(), 1);
}

TEST_F(RemoteConfigServiceTest, NotModifiedKeepsTheValuesAndCountsAsFetched) {
  RemoteConfigService service(settings(), path());
  fetch(service);
  EXPECT_FALSE(server_.requests()[0].contains("If-None-Match"));
  serve("304 Not Modified", "");
  EXPECT_EQ(fetch(service).status, FetchStatus::success);
  EXPECT_TRUE(server_.requests()[1].contains("\r\nIf-None-Match: \"one\"\r\n"));
  activate(service);
  EXPECT_EQ(service.dataValue("apps"), "old");
}

TEST_F(RemoteConfigServiceTest, ANotModifiedThatNobodyAskedForIsAFailure) {
  serve("304 Not Modified", "");
  RemoteConfigService service(settings(), path());
  EXPECT_EQ(fetch(service).status, FetchStatus::failure);
}

TEST_F(RemoteConfigServiceTest, AWrongAnswerLeavesTheOldValues) {
  RemoteConfigService service(settings(), path());
  fetch(service);
  activate(service);
  const LoopbackServer other([](const QByteArray&, QTcpSocket& socket) {
    LoopbackServer::answer(socket, "200 OK", R"({"apps": "from elsewhere"})");
  });

  // The same server under an address that is no loopback one, though the system takes it there.
  QUrl elsewhere = other.address();
  elsewhere.setHost("0.0.0.0");

  struct Case {
    const char* what;
    LoopbackServer::Handler handler;
  };
  const auto whole = [](const QByteArray& status, const QByteArray& body, const QByteArray& head = {}) {
    return [=](const QByteArray&, QTcpSocket& socket) { LoopbackServer::answer(socket, status, body, head); };
  };
  const auto raw = [](const QByteArray& bytes) {
    return [=](const QByteArray&, QTcpSocket& socket) {
      socket.write(bytes);
      socket.disconnectFromHost();
    };
  };
  const QByteArray huge = "{\"apps\": \"" + QByteArray(5 * 1024 * 1024, 'x') + "\"}";
  const Case cases[] = {
      {"no JSON", whole("200 OK", "<html>Log in to this network</html>")},
      {"cut off with a length", raw("HTTP/1.1 200 OK\r\nContent-Length: 500\r\n\r\n{\"apps\": \"new\"}")},
      {"cut off without one", raw("HTTP/1.1 200 OK\r\n\r\n{\"apps\": \"new")},
      {"cut off in a chunk",
       raw("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\nff\r\n{\"apps\": \"new\"}")},
      {"an array", whole("200 OK", R"(["apps"])")},
      {"a value of another type", whole("200 OK", R"({"apps": "new", "ads": {"a": []}})")},
      {"a null", whole("200 OK", R"({"apps": null})")},
      {"no UTF-8", whole("200 OK", "{\"apps\": \"\xff\xfe\"}")},
      {"nothing", whole("200 OK", "")},
      {"empty answer of another status", whole("204 No Content", "")},
      {"not found", whole("404 Not Found", R"({"apps": "new"})")},
      {"server error", whole("500 Internal Server Error", R"({"apps": "new"})")},
      {"too long", whole("200 OK", huge)},
      {"too long without a length", raw("HTTP/1.1 200 OK\r\n\r\n" + huge)},
      {"no HTTP", raw("hello\r\n\r\n")},
      {"closed at once", raw("")},
      {"redirect to http", whole("302 Found", "", "Location: " + elsewhere.toEncoded() + "\r\n")},
      {"redirect to a file", whole("302 Found", "", "Location: file:///etc/hostname\r\n")},
      {"redirect to nowhere", whole("302 Found", "")},
      {"redirect to itself", whole("302 Found", "", "Location: /\r\n")},
  };
  for (const Case& each : cases) {
    server_.setHandler(each.handler);
    const Result result = fetch(service);
    EXPECT_EQ(result.status, FetchStatus::failure) << each.what;
    EXPECT_TRUE(result.error && !result.error->isEmpty()) << each.what;
    activate(service);
    EXPECT_EQ(service.dataValue("apps"), "old") << each.what;
  }

  EXPECT_TRUE(other.requests().isEmpty());
  serve("302 Found", "", "Location: " + other.address().toEncoded() + "\r\n");
  EXPECT_EQ(fetch(service).status, FetchStatus::success) << "after the failures, over an allowed redirect";
  activate(service);
  EXPECT_EQ(service.dataValue("apps"), "from elsewhere");
}

TEST_F(RemoteConfigServiceTest, ASlowServerIsGivenUp) {
  RemoteConfigSettings impatient = settings();
  impatient.timeout = milliseconds(200);
  RemoteConfigService service(impatient, path());

  server_.setHandler([](const QByteArray&, QTcpSocket&) {});
  EXPECT_EQ(fetch(service).status, FetchStatus::failure) << "silence";

  // Always some byte, so that only a limit for the whole can end it.
  server_.setHandler([](const QByteArray&, QTcpSocket& socket) {
    socket.write("HTTP/1.1 200 OK\r\nContent-Length: 100000\r\n\r\n");
    auto* drip = new QTimer(&socket);
    QObject::connect(drip, &QTimer::timeout, &socket, [&socket] { socket.write(" "); });
    drip->start(10);
  });
  EXPECT_EQ(fetch(service).status, FetchStatus::failure) << "dripping";
}

TEST_F(RemoteConfigServiceTest, AnAnswerUpToTheLimitComesWhole) {
  RemoteConfigService service(settings(), path());
  const qsizetype frame = QByteArrayView(R"({"apps":""})").size();
  const QByteArray text(settings().bodyLimit - frame, 'x');
  const QByteArray body = R"({"apps":")" + text + R"("})";
  for (const QByteArray& head :
       {"Content-Length: " + QByteArray::number(body.size()) + "\r\n", QByteArray()}) {
    server_.setHandler([&](const QByteArray&, QTcpSocket& socket) {
      socket.write("HTTP/1.1 200 OK\r\n" + head + "\r\n" + body);
      socket.disconnectFromHost();
    });
    EXPECT_EQ(fetch(service).status, FetchStatus::success);
    activate(service);
    EXPECT_EQ(service.dataValue("apps").size(), text.size());
    serve("200 OK", "{}");
    fetch(service);
    activate(service);
  }
}

TEST_F(RemoteConfigServiceTest, AnAnswerWithoutEndIsReadToTheLimitOnly) {
  constexpr qint64 enough = 512LL * 1024 * 1024;
  std::promise<quint16> port;
  std::atomic<qint64> sent = 0;
  // A server that is as fast as it can be, in a thread of its own.
  const std::unique_ptr<QThread> thread(QThread::create([&] {
    QTcpServer server;
    server.listen(QHostAddress::LocalHost);
    port.set_value(server.serverPort());
    if (!server.waitForNewConnection(10'000)) return;
    QTcpSocket* socket = server.nextPendingConnection();
    socket->waitForReadyRead(10'000);
    socket->write("HTTP/1.1 200 OK\r\n\r\n");
    const QByteArray block(1024 * 1024, 'x');
    while (sent < enough && socket->write(block) > 0 && socket->waitForBytesWritten(10'000))
      sent += block.size();
  }));
  thread->start();
  RemoteConfigSettings endless = settings();
  endless.endpoint.setPort(port.get_future().get());
  RemoteConfigService service(endless, path());
  EXPECT_EQ(fetch(service).status, FetchStatus::failure);
  thread->wait();
  EXPECT_LT(sent, 32 * 1024 * 1024) << "the limit, and what the system holds on the way";
}

TEST_F(RemoteConfigServiceTest, NothingGoesOutWithoutASecureAddress) {
  int accesses = 0;
  const NetworkAccessFactory counting = [&] {
    ++accesses;
    return makeNetworkAccess();
  };
  RemoteConfigSettings insecure = settings();
  insecure.allowsLoopbackHttp = false;
  for (const RemoteConfigSettings& each :
       {RemoteConfigSettings(), insecure,
        RemoteConfigSettings{.endpoint = QUrl("http://192.0.2.1/"), .allowsLoopbackHttp = true}}) {
    RemoteConfigService service(each, path(), counting);
    const Result result = fetch(service);
    EXPECT_EQ(result.status, FetchStatus::failure);
    EXPECT_TRUE(result.error);
  }
  EXPECT_EQ(accesses, 0);
  EXPECT_TRUE(server_.requests().isEmpty());
}

TEST_F(RemoteConfigServiceTest, NobodyIsAnsweredByAServiceThatIsGone) {
  bool isAnswered = false;
  {
    RemoteConfigService service(settings(), path());
    service.fetch(now, [&](FetchStatus, const std::optional<QString>&) { isAnswered = true; });
    service.activate([&](bool) { isAnswered = true; });
  }
  RemoteConfigService service(settings(), path());
  fetch(service);
  EXPECT_FALSE(isAnswered);
}

TEST_F(RemoteConfigServiceTest, StoredStateOfAnotherShapeIsNoState) {
  for (const QVariant& state :
       {QVariant("text"), QVariant(QVariantMap{{"active", 5}, {"fetched", "x"}, {"lastFetchAt", "now"}}),
        QVariant(QVariantMap{{"active", QVariantMap{{"apps", QVariantList{1}}}},
                             {"entityTag", QVariantList()}})}) {
    PreferenceStore(path()).setValue("remoteConfig", state);
    RemoteConfigService service(settings(), path());
    EXPECT_EQ(service.dataValue("apps"), "");
    EXPECT_EQ(fetch(service, sixHours).status, FetchStatus::success);
  }
}

TEST(RemoteConfigSettingsTest, ComeFromTheBundle) {
  EXPECT_TRUE(RemoteConfigSettings::fromBundle(ResourceBundle::main()).endpoint.isEmpty());
  EXPECT_FALSE(RemoteConfigSettings::fromBundle(ResourceBundle::main()).allowsLoopbackHttp);

  const QTemporaryDir folder;
  const auto write = [&](const QByteArray& text) {
    QFile file(folder.filePath("ProjectSettings.json"));
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write(text);
  };
  write(R"({"remoteConfigEndpoint": "https://config.example.org/values"})");
  EXPECT_EQ(RemoteConfigSettings::fromBundle(ResourceBundle(folder.path())).endpoint,
            QUrl("https://config.example.org/values"));
  write(R"({"remoteConfigEndpoint": 5, "allowsLoopbackHttp": "yes"})");
  EXPECT_TRUE(RemoteConfigSettings::fromBundle(ResourceBundle(folder.path())).endpoint.isEmpty());
  EXPECT_FALSE(RemoteConfigSettings::fromBundle(ResourceBundle(folder.path())).allowsLoopbackHttp);
}

}  // namespace
}  // namespace tavi
