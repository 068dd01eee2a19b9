#include "platform/online_test.h"

#include <QTimer>
#include <optional>

#include <gtest/gtest.h>

#include "platform/test_support.h"

namespace tavi {
namespace {

std::optional<bool> answerOf(const OnlineTest& test) {
  QObject context;
  std::optional<bool> answer;
  test.run(&context, [&](bool isOnline) { answer = isOnline; });
  EXPECT_FALSE(answer) << "an answer comes later, never from within the call";
  waitUntil([&] { return answer.has_value(); });
  return answer;
}

TEST(OnlineTestTest, AnyHttpResponseIsOnline) {
  const QByteArray heads[] = {
      "HTTP/1.1 200 OK\r\nContent-Length: 0\r\n\r\n", "HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\n\r\n",
      "HTTP/1.1 503 Down\r\nContent-Length: 0\r\n\r\n",
      "HTTP/1.1 301 Moved\r\nLocation: http://192.0.2.1/\r\nContent-Length: 0\r\n\r\n",
      // A body that never ends, after which nobody waits.
      "HTTP/1.1 200 OK\r\nContent-Length: 1000000\r\n\r\nx"};
  for (const QByteArray& head : heads) {
    const LoopbackServer server([&](const QByteArray&, QTcpSocket& socket) { socket.write(head); });
    EXPECT_EQ(answerOf(OnlineTest(server.address())), true) << head.toStdString();
    EXPECT_EQ(server.requests().size(), 1) << head.toStdString();
  }
}

TEST(OnlineTestTest, NoResponseIsOffline) {
  LoopbackServer server([](const QByteArray&, QTcpSocket& socket) { socket.close(); });
  EXPECT_EQ(answerOf(OnlineTest(server.address())), false);
  server.setHandler([](const QByteArray&, QTcpSocket& socket) {
    socket.write("no HTTP\r\n\r\n");
    socket.close();
  });
  EXPECT_EQ(answerOf(OnlineTest(server.address())), false);
  server.setHandler([](const QByteArray&, QTcpSocket&) {});
  EXPECT_EQ(answerOf(OnlineTest(server.address(), std::chrono::milliseconds(100))), false);

  QUrl closed;
  {
    closed = LoopbackServer([](const QByteArray&, QTcpSocket&) {}).address();
  }
  EXPECT_EQ(answerOf(OnlineTest(closed)), false);
}

TEST(OnlineTestTest, NobodyIsAnsweredWhoIsGone) {
  const LoopbackServer server(
      [](const QByteArray&, QTcpSocket& socket) { LoopbackServer::answer(socket, "200 OK", ""); });
  bool isAnswered = false;
  {
    QObject context;
    OnlineTest(server.address()).run(&context, [&](bool) { isAnswered = true; });
  }
  EXPECT_EQ(answerOf(OnlineTest(server.address())), true);
  EXPECT_FALSE(isAnswered);
}

}  // namespace
}  // namespace tavi
