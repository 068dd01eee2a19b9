#include "shell/history/history_transfer.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include "platform/localization.h"
#include "platform/test_support.h"
#include "shell/frame/view_manager.h"
#include "shell/history/history_fixture.h"

namespace tavi {
namespace {

/// The history over a folder of documents of its own.
class HistoryTransferTest : public HistoryScreenTest {
 protected:
  HistoryTransferTest() {
    qputenv("HOME", folder.path().toUtf8());
    ViewManager::hideToast();
  }
  ~HistoryTransferTest() override { qputenv("HOME", home_); }

  static QString toast() { return ViewManager::shared().toastText(); }

  QString exported() {
    const QUrl file = HistoryTransfer::proposedFile();
    history->transfer()->exportTo(file);
    EXPECT_TRUE(waitUntil([] { return !toast().isEmpty(); }));
    EXPECT_EQ(toast(), localized("sharingSaved").arg(file.toLocalFile()));
    ViewManager::hideToast();
    return file.toLocalFile();
  }

  void import(const QString& path) {
    ViewManager::hideToast();
    history->transfer()->importFrom(QUrl::fromLocalFile(path));
    EXPECT_TRUE(waitUntil([this] { return !toast().isEmpty() || alert(); }));
  }

  QString written(const QByteArray& bytes) {
    QFile file(folder.filePath("foreign.json"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    return file.fileName();
  }

 private:
  QByteArray home_ = qgetenv("HOME");
};

TEST_F(HistoryTransferTest, WhatIsExportedComesBack) {
  Calculation dated = task("D");
  dated.calculatedAt = QDateTime::currentDateTimeUtc();
  store.addCalculation(dated);
  store.addCalculation(task("A"));
  const QList<Calculation> before = store.calculations();
  const QString path = exported();
  EXPECT_NE(exported(), path) << "a file that is there is kept";

  import(path);
  EXPECT_EQ(toast(), localized("historyNothingNew"));
  EXPECT_EQ(store.calculations(), before);

  store.clearCalculations();
  import(path);
  EXPECT_EQ(store.calculations(), before) << "twice what stood there twice";
  EXPECT_EQ(CalcManager(preferences).calculations(), before);
}

TEST_F(HistoryTransferTest, AnImportStandsBehindAndCanBeUndone) {
  const QString path = exported();
  store.removeCalculation(1);
  store.addCalculation(task("E"));
  import(path);
  EXPECT_EQ(toast(), localized("historyImported").arg(1));
  EXPECT_EQ(stored(), QStringList({"E", "A", "C", "B"}));
  EXPECT_EQ(history->table()->rowCount(), 4) << "the page shows it at once";
  ViewManager::chooseToastAction();
  EXPECT_EQ(stored(), QStringList({"E", "A", "C"}));
  EXPECT_EQ(history->table()->rowCount(), 3);
}

TEST_F(HistoryTransferTest, ABadFileChangesNothingAndIsToldOf) {
  QByteArray damaged = historyFile(store.calculations() + QList{task("D")});
  damaged.replace("\"D\"", "17");
  for (const auto& [path, key] : std::initializer_list<std::pair<QString, const char*>>{
           {written(damaged), "historyNoHistory"},
           {folder.filePath("none.json"), "historyUnreadable"},
           {"/dev/zero", "historyTooLarge"}}) {
    import(path);
    ASSERT_TRUE(alert()) << key;
    EXPECT_EQ(alert()->message(), localized(key));
    EXPECT_EQ(stored(), QStringList({"A", "B", "C"}));
    alert()->choose(0);
  }
  history->transfer()->importFrom(QUrl("https://example.org/history.json"));
  ASSERT_TRUE(alert());
  EXPECT_EQ(alert()->message(), localized("historyUnreadable"));
}

TEST_F(HistoryTransferTest, ReplacesNoFileThatTheDialogDidNotAskAbout) {
  const QString former = exported();
  store.clearCalculations();
  history->transfer()->exportTo(QUrl::fromLocalFile(QString(former).remove(".json")));
  ASSERT_TRUE(waitUntil([] { return !toast().isEmpty(); }));
  import(former);
  EXPECT_EQ(stored(), QStringList({"A", "B", "C"}));
}

TEST_F(HistoryTransferTest, AFileThatCannotBeWrittenIsToldOf) {
  history->transfer()->exportTo(QUrl::fromLocalFile("/dev/full/history"));
  ASSERT_TRUE(waitUntil([this] { return alert() != nullptr; }));
  EXPECT_EQ(alert()->message(), localized("sharingNotWritable"));
}

TEST_F(HistoryTransferTest, OffersTheFilesOfTheFolderWhereThereIsNoDialog) {
  history->transfer()->chooseFile();
  ASSERT_TRUE(alert());
  EXPECT_EQ(alert()->message(), localized("historyNoFile").arg(folder.path()));
  alert()->choose(0);

  const QString path = exported();
  store.clearCalculations();
  history->transfer()->chooseFile();
  ASSERT_TRUE(alert());
  EXPECT_EQ(alert()->actionTitles(), QStringList({QFileInfo(path).completeBaseName(), localized("Cancel")}));
  alert()->choose(0);
  ASSERT_TRUE(waitUntil([] { return !toast().isEmpty(); }));
  EXPECT_EQ(stored(), QStringList({"A", "B", "C"}));
}

}  // namespace
}  // namespace tavi
