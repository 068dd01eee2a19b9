#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <random>

#include <gtest/gtest.h>

#include "platform/preference_store.h"
#include "platform/store_children.h"
#include "platform/test_support.h"

namespace tavi {
namespace {

class PreferenceStoreFaultsTest : public testing::Test {
 protected:
  int runChild(const QString& name, const QString& path) {
    child_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    child_.start(QCoreApplication::applicationFilePath(), {"--child", name, path});
    child_.waitForFinished(-1);
    return child_.exitStatus() == QProcess::NormalExit ? child_.exitCode() : -1;
  }

  static QByteArray content(const QString& path) {
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
  }

  static void write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write(bytes);
  }

  QByteArray goodFile() const {
    const QString good = folder_.filePath("good.sqlite");
    PreferenceStore(good).setValue("key", QString(50'000, u'x'));
    return content(good);
  }

  QTemporaryDir folder_;
  QString path_ = folder_.filePath("preferences.sqlite");
  QString aside_ = path_ + ".unreadable-1";
  QProcess child_;
};

TEST_F(PreferenceStoreFaultsTest, AKilledProcessLosesNoAcknowledgedWrite) {
  std::mt19937 random(1);  // The moment of the kill only; every round starts from what the last one left.
  qlonglong acknowledged = 0;
  for (int round = 0; round < 15; ++round) {
    QProcess writer;
    writer.start(QCoreApplication::applicationFilePath(), {"--child", "count-up", path_});
    ASSERT_TRUE(writer.waitForReadyRead());
    writer.waitForFinished(static_cast<int>(random() % 40));
    writer.kill();
    writer.waitForFinished();
    const QByteArrayList numbers = writer.readAllStandardOutput().split('\n');
    acknowledged = numbers.value(numbers.size() - 2).toLongLong();

    const PreferenceStore store(path_);
    const QVariantList list = store.variant("list").toList();
    ASSERT_GE(list.size(), acknowledged);
    ASSERT_LE(list.size(), acknowledged + 1);
    for (qsizetype i = 0; i < list.size(); ++i) ASSERT_EQ(list[i], list.size() - i);
  }
  EXPECT_GT(acknowledged, 15);
  EXPECT_FALSE(QFile::exists(aside_));
}

TEST_F(PreferenceStoreFaultsTest, SetsUnreadableFilesAsideUntouched) {
  const QByteArray good = goodFile();
  QByteArray damaged = good;
  damaged.replace(4096, 4096, QByteArray(4096, '\xA5'));
  const QString foreign = folder_.filePath("foreign.sqlite");
  runSql(foreign, "CREATE TABLE preferences(name, content); INSERT INTO preferences VALUES('a', 'b')");
  const QString other = folder_.filePath("other.sqlite");
  runSql(other, "PRAGMA application_id = 7; CREATE TABLE preferences(key TEXT PRIMARY KEY, value TEXT)");
  const QString tables = folder_.filePath("tables.sqlite");
  runSql(tables, "CREATE TABLE customers(name)");
  const QString view = folder_.filePath("view.sqlite");
  runSql(view, "CREATE VIEW preferences AS SELECT 'a' AS key, 'b' AS value");

  const QList<QByteArray> files{"no database at all",
                                QByteArray(100'000, '\0'),
                                good.first(good.size() / 2),
                                good.first(good.size() - 4096),
                                good.first(50),
                                damaged,
                                content(foreign),
                                content(other),
                                content(tables),
                                content(view)};
  for (qsizetype i = 0; i < files.size(); ++i) {
    QFile::remove(path_);
    write(path_, files[i]);
    const QString aside = path_ + ".unreadable-" + QString::number(i + 1);
    const ConsoleLines console;
    {
      PreferenceStore store(path_);
      EXPECT_TRUE(store.isDurable()) << i;
      EXPECT_FALSE(store.contains("key")) << i;
      EXPECT_TRUE(store.setValue("key", "new")) << i;
    }
    EXPECT_EQ(content(aside), files[i]) << i;
    EXPECT_EQ(console.lines().size(), 1) << i;
    EXPECT_EQ(PreferenceStore(path_).variant("key"), "new") << i;
  }
}

TEST_F(PreferenceStoreFaultsTest, SetsADamagedFilesLogAsideWithIt) {
  write(path_, "no database at all");
  write(path_ + "-wal", "what was not yet in it");
  { const PreferenceStore store(path_); }
  EXPECT_EQ(content(aside_), "no database at all");
  EXPECT_EQ(content(aside_ + "-wal"), "what was not yet in it");
}

TEST_F(PreferenceStoreFaultsTest, SetsAFolderAndADeadLinkAside) {
  QDir().mkpath(path_ + "/inside");
  EXPECT_TRUE(PreferenceStore(path_).isDurable());
  EXPECT_TRUE(QFile::exists(aside_ + "/inside"));

  QFile::remove(path_);
  QFile::link(folder_.filePath("nowhere/at all"), path_);
  EXPECT_TRUE(PreferenceStore(path_).setValue("key", true));
  EXPECT_TRUE(PreferenceStore(path_).contains("key"));
}

TEST_F(PreferenceStoreFaultsTest, SetsAClosedFileAside) {
  QFile::setPermissions(folder_.path(), QFile::Permissions(0x7777));
  write(path_, goodFile());
  QFile::setPermissions(path_, {});
  const int result = runChild("no-permission", path_);
  if (result == childCannotRun) GTEST_SKIP() << "cannot become another user";
  EXPECT_EQ(result, 0);
}

TEST_F(PreferenceStoreFaultsTest, ReadsWhatIsThereWhereNothingCanBeWritten) {
  struct Case {
    const char* what;
    bool isKilled;  // What was written last is in the log only.
    int folderMode;
    int fileMode;
  };
  for (const Case& each :
       {Case{"a closed store", false, 0x5555, 0x6666}, Case{"a killed store", true, 0x5555, 0x6666},
        Case{"a read-only file", false, 0x7777, 0x4444}}) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("preferences.sqlite");
    PreferenceStore(path).setValue("key", each.isKilled ? "old" : "kept");
    if (each.isKilled) {
      ASSERT_EQ(runChild("write-and-die", path), 0) << each.what;
      ASSERT_TRUE(QFile::exists(path + "-wal")) << each.what;
    }
    QFile::setPermissions(path, QFile::Permissions(each.fileMode));
    QFile::setPermissions(folder.path(), QFile::Permissions(each.folderMode));
    const int result = runChild("read-only", path);
    QFile::setPermissions(folder.path(), QFile::Permissions(0x7777));
    if (result == childCannotRun) GTEST_SKIP() << "cannot become another user";
    EXPECT_EQ(result, 0) << each.what;
    EXPECT_EQ(PreferenceStore(path).variant("key"), "kept") << each.what;
    EXPECT_FALSE(QFile::exists(path + ".unreadable-1")) << each.what;
  }
}

TEST_F(PreferenceStoreFaultsTest, StartsInMemoryWhereNoFileCanBe) {
  write(folder_.filePath("file"), "in the way");
  const ConsoleLines console;
  PreferenceStore store(folder_.filePath("file/preferences.sqlite"));
  EXPECT_FALSE(store.isDurable());
  EXPECT_TRUE(store.setValue("key", "value"));
  EXPECT_EQ(store.variant("key"), "value");
  EXPECT_EQ(console.lines().size(), 1);
}

TEST_F(PreferenceStoreFaultsTest, SaysThatItsFileWasTakenAway) {
  const QTemporaryDir folder;
  PreferenceStore store(folder.filePath("a/preferences.sqlite"));
  ASSERT_TRUE(store.setValue("key", "kept"));
  int refusals = 0;
  store.setRefusalHandler([&refusals] { ++refusals; });
  QDir(folder.filePath("a")).removeRecursively();
  EXPECT_FALSE(store.setValue("key", "lost"));
  EXPECT_EQ(refusals, 1);
  EXPECT_EQ(store.variant("key"), "lost") << "it lives as long as the process";
}

TEST_F(PreferenceStoreFaultsTest, KeepsWhatWasAcknowledgedWhenTheFileCannotGrow) {
  ASSERT_EQ(runChild("fill-file", path_), 0);
  const qlonglong acknowledged = child_.readAllStandardOutput().trimmed().toLongLong();
  EXPECT_GT(acknowledged, 10);
  EXPECT_LT(acknowledged, 100'000);
  const PreferenceStore store(path_);
  for (qlonglong i = 0; i < acknowledged; ++i)
    EXPECT_TRUE(store.contains(QStringLiteral("key %1").arg(i))) << i;
  EXPECT_FALSE(QFile::exists(aside_));
}

TEST_F(PreferenceStoreFaultsTest, OpensOnAFullDiskAndLosesNothing) {
  for (const char* child : {"fill-disk", "old-form-full-disk"}) {
    const int result = runChild(child, folder_.path());
    if (result == childCannotRun) GTEST_SKIP() << "cannot mount a small disk";
    EXPECT_EQ(result, 0) << child;
  }
}

}  // namespace
}  // namespace tavi
