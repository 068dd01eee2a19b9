#include "platform/single_instance.h"

#include <QCoreApplication>
#include <QLocalSocket>
#include <QProcess>
#include <QThread>
#include <QTimer>
#include <optional>

#include <gtest/gtest.h>

#include "platform/test_support.h"

namespace tavi {
namespace {

class SingleInstanceTest : public testing::Test {
 protected:
  /// Another start, while this process goes on.
  bool isOtherFirst(const QStringList& arguments = {}) {
    std::optional<bool> isFirst;
    const std::unique_ptr<QThread> thread(QThread::create(
        [&] { isFirst = SingleInstance(folder_.path(), std::chrono::minutes(1)).isFirst(arguments); }));
    thread->start();
    EXPECT_TRUE(waitUntil([&] { return thread->isFinished(); }));
    return isFirst.value_or(false);
  }

  QTemporaryDir folder_;
};

TEST_F(SingleInstanceTest, ALaterStartShowsTheFirstOneAndEnds) {
  {
    SingleInstance first(folder_.path());
    QList<QStringList> shown;
    QObject::connect(&first, &SingleInstance::shown,
                     [&shown](const QStringList& arguments) { shown.append(arguments); });
    const QList<QStringList> asked{{}, {"root", "", "8 π\n"}, {QString(500'000, u'9')}};
    EXPECT_TRUE(first.isFirst());
    for (const QStringList& arguments : asked) EXPECT_FALSE(isOtherFirst(arguments));
    EXPECT_EQ(shown, asked);
    for (const QByteArray& words :
         {QByteArray(10'000'000, 'x'), QByteArray("show\n"), QByteArray("show  {}\n")}) {
      QLocalSocket stranger;
      stranger.connectToServer(folder_.filePath("instance.socket"));
      stranger.write(words);
      EXPECT_TRUE(waitUntil([&] { return stranger.state() == QLocalSocket::UnconnectedState; }));
    }
    EXPECT_EQ(shown, asked);
  }
  EXPECT_TRUE(isOtherFirst()) << "the first one is gone";
}

TEST_F(SingleInstanceTest, OneThatIsAboutToEndIsAwaited) {
  auto first = std::make_optional<SingleInstance>(folder_.path());
  EXPECT_TRUE(first->isFirst());
  bool isShown = false;
  QObject::connect(&*first, &SingleInstance::shown, [&isShown] { isShown = true; });
  first->retire();
  QTimer::singleShot(100, [&first] { first.reset(); });
  EXPECT_TRUE(isOtherFirst());
  EXPECT_FALSE(isShown);
}

TEST_F(SingleInstanceTest, AKilledOneIsNotThere) {
  QProcess first;
  first.start(QCoreApplication::applicationFilePath(), {"--child", "hold-instance", folder_.path()});
  ASSERT_TRUE(first.waitForReadyRead());
  first.kill();
  first.waitForFinished();
  ASSERT_TRUE(QFile::exists(folder_.filePath("instance.socket")));
  SingleInstance next(folder_.path());
  EXPECT_TRUE(next.isFirst());
  EXPECT_FALSE(isOtherFirst());
}

TEST_F(SingleInstanceTest, OneThatDoesNotAnswerKeepsNobodyWaiting) {
  SingleInstance first(folder_.path());
  EXPECT_TRUE(first.isFirst());
  EXPECT_TRUE(SingleInstance(folder_.path(), std::chrono::milliseconds(100)).isFirst())
      << "in this thread, so that the first one cannot answer";
}

TEST_F(SingleInstanceTest, WhereNoLockCanBeEveryStartIsTheFirst) {
  EXPECT_TRUE(SingleInstance("/dev/null/nowhere").isFirst());
}

}  // namespace
}  // namespace tavi
