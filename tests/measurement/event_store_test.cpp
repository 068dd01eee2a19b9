#include "measurement/event_store.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <limits>

#include <gtest/gtest.h>
#include <unistd.h>

#include "platform/test_support.h"

namespace tavi {
namespace {

constexpr uid_t nobody = 65534;

class EventStoreTest : public testing::Test {
 protected:
  QString path() const { return folder_.filePath("measurement.sqlite"); }

  QTemporaryDir folder_;
};

TEST_F(EventStoreTest, CutsBatchesAtBothLimits) {
  EventStore store(path());
  for (int i = 0; i < 300; ++i) store.add(QByteArray(i < 2 ? 200'000 : 9, 'x'));
  const EventBatch first = store.batch(200, 256 * 1024);
  EXPECT_EQ(first.records.size(), 1U);
  store.remove(first.lastId);
  const EventBatch second = store.batch(200, 256 * 1024);
  EXPECT_EQ(second.records.size(), 200U);
  store.remove(second.lastId);
  EXPECT_EQ(store.batch(200, 256 * 1024).records.size(), 99U);
}

TEST_F(EventStoreTest, TheOldestGoFirst) {
  {
    EventStore store(path());
    for (int i = 0; i < 10'001; ++i) store.add(QByteArray::number(i));
    EXPECT_LE(store.count(), EventStore::eventLimit);
    const EventBatch batch = store.batch(20'000, 1'000'000);
    EXPECT_EQ(batch.records.back(), "10000");
    EXPECT_GT(batch.records.size(), 9000U);
    store.remove(batch.lastId);
    for (int i = 0; i < 11; ++i) store.add(QByteArray(500'000, static_cast<char>('a' + i)));
    EXPECT_EQ(store.batch(20'000, 10'000'000).records.back().front(), 'k');
    EXPECT_LE(store.count(), 10);
  }
  EXPECT_EQ(EventStore(path()).batch(1, 1).records.size(), 1U);
}

TEST_F(EventStoreTest, TheDailyNumberStaysForADay) {
  const QDate day(2024, 2, 29);
  const QByteArray number = EventStore(path()).dailyNumber(day);
  EXPECT_EQ(number.size(), 16);
  EXPECT_EQ(EventStore(path()).dailyNumber(day), number);
  EXPECT_NE(EventStore(path()).dailyNumber(day.addDays(1)), number);
}

TEST_F(EventStoreTest, ADefectiveFileBeginsAfresh) {
  QFile file(path());
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(QByteArray(10'000, 'x'));
  file.close();
  EventStore store(path());
  store.add("event");
  EXPECT_EQ(store.batch(10, 1000).records, std::vector<QByteArray>{"event"});
}

// Numbers that cannot be true, and notes: whoever reads them neither hangs nor sends for ever.
TEST_F(EventStoreTest, DefectiveNumbersBeginAfresh) {
  const char* const defects[] = {
      "INSERT INTO events(id, record) VALUES(1000000000000, 'far')",
      "INSERT INTO events(id, record) VALUES(-9000000000000000000, 'low'), (9000000000000000000, 'high')",
      "INSERT INTO events(id, record) VALUES(9223372036854775807, 'last')",
  };
  for (const char* defect : defects) {
    EventStore(path()).add("before");
    runSql(path(), defect);
    EventStore store(path());
    store.add("after");
    EXPECT_EQ(store.batch(10, 1000).records, std::vector<QByteArray>{"after"}) << defect;
    EXPECT_EQ(store.count(), 1);
    store.remove(std::numeric_limits<qint64>::max());
    EXPECT_EQ(store.count(), 0);
  }
  EventStore(path()).setSendState({.notBefore = std::numeric_limits<qint64>::min(), .failures = -99});
  EXPECT_EQ(EventStore(path()).sendState().notBefore, 0);
  EXPECT_EQ(EventStore(path()).sendState().failures, 0);
  EventStore(path()).setSendState({.notBefore = 1, .failures = std::numeric_limits<int>::max()});
  EXPECT_EQ(EventStore(path()).sendState().failures, SendState::failureLimit);
}

// What is on its way while the file becomes defective is acknowledged later, and meets nothing new.
TEST_F(EventStoreTest, AnOldAcknowledgementMeetsNothingNew) {
  runSql(path(),
         "CREATE TABLE events(id INTEGER PRIMARY KEY, record BLOB CHECK(record <> CAST('lost' AS BLOB)))");
  EventStore store(path());
  for (int i = 0; i < 3; ++i) store.add("old");
  const EventBatch batch = store.batch(10, 1000);
  store.add("lost");
  store.add("new");
  store.remove(batch.lastId);
  EXPECT_EQ(store.batch(10, 1000).records, std::vector<QByteArray>{"new"});
  EXPECT_EQ(store.count(), 1);
}

TEST_F(EventStoreTest, AFileThatCannotBeDeletedIsEmptied) {
  EventStore(path()).add("secret");
  QFile::setPermissions(path(), QFile::Permissions(0x6666));
  QFile::setPermissions(folder_.path(), QFile::Permissions(0x5555));
  const bool isRoot = geteuid() == 0;  // Who could delete it.
  const bool isOther = !isRoot || seteuid(nobody) == 0;
  const bool isGone = EventStore::discard(path());
  if (isRoot && isOther && seteuid(0) != 0) FAIL() << "cannot become root again";
  QFile::setPermissions(folder_.path(), QFile::Permissions(0x7777));
  if (!isOther) GTEST_SKIP() << "cannot become another user";
  EXPECT_TRUE(isGone);
  EXPECT_TRUE(QFile::exists(path()));
  EXPECT_EQ(QFileInfo(path()).size(), 0);
}

TEST_F(EventStoreTest, AFileThatAnotherProcessDeletedIsNotUsed) {
  EventStore store(path());
  store.add("withdrawn");
  EventStore::discard(path());
  EXPECT_TRUE(store.batch(10, 1000).records.empty());
  store.add("after");
  EXPECT_EQ(store.count(), 0);
  EXPECT_TRUE(QDir(folder_.path()).isEmpty());
}

TEST_F(EventStoreTest, WithoutAPlaceNothingIsKeptAndNothingHappens) {
  ASSERT_TRUE(QDir().mkpath(path() + "/taken"));
  EventStore store(path());
  store.add("event");
  EXPECT_TRUE(store.batch(10, 1000).records.empty());
  store.remove(1);
  EXPECT_EQ(store.count(), 0);
}

}  // namespace
}  // namespace tavi
