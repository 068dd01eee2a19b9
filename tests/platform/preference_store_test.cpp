#include "platform/preference_store.h"

#include <QCoreApplication>
#include <QProcess>

#include <gtest/gtest.h>

#include "number/fatal_stop.h"
#include "platform/store_children.h"
#include "platform/test_support.h"

namespace tavi {
namespace {

class PreferenceStoreTest : public testing::Test {
 protected:
  QString path(const QString& name = "preferences.sqlite") const { return folder_.filePath(name); }

  QTemporaryDir folder_;
};

TEST_F(PreferenceStoreTest, GivesEveryKindBackExactlyInAnotherProcess) {
  ASSERT_EQ(QProcess::execute(QCoreApplication::applicationFilePath(), {"--child", "write-kinds", path()}),
            0);
  const PreferenceStore store(path());
  const QVariantList written = valuesOfEveryKind();
  for (qsizetype i = 0; i < written.size(); ++i) {
    const QVariant read = store.variant(QString::number(i));
    EXPECT_EQ(read.typeId(), written[i].typeId()) << testing::PrintToString(written[i]);
    EXPECT_EQ(read, written[i]);
  }
}

TEST_F(PreferenceStoreTest, MakesTheFoldersAboveItsFile) {
  PreferenceStore store(path("a/b/preferences.sqlite"));
  EXPECT_TRUE(store.isDurable());
}

TEST_F(PreferenceStoreTest, ReadsByKind) {
  constexpr QLatin1StringView key("counter");
  PreferenceStore store(path());
  EXPECT_EQ(store.value(Preference<qlonglong>{key, 7}), 7);
  EXPECT_TRUE(store.setValue(Preference<qlonglong>{key}, 5));
  EXPECT_EQ(store.value(Preference<qlonglong>{key, 7}), 5);
  EXPECT_EQ(store.value(Preference<QString>{key, "no text"}), "no text");
  EXPECT_EQ(store.find(Preference<bool>{key}), std::nullopt);
  EXPECT_TRUE(store.contains(Preference<bool>{key}));
}

TEST_F(PreferenceStoreTest, AKeyIsThereUntilItIsCleared) {
  PreferenceStore store(path());
  EXPECT_FALSE(store.contains("key"));
  store.setValue("key", QVariantList());
  EXPECT_TRUE(store.contains("key"));
  EXPECT_TRUE(store.setValue("key", QVariant()));
  EXPECT_FALSE(store.contains("key"));
  EXPECT_TRUE(store.remove("key"));
}

TEST_F(PreferenceStoreTest, RefusesOtherKinds) {
  PreferenceStore store(path());
  store.setValue("key", "old");
  for (const QVariant& value : {QVariant(1.5), QVariant(QByteArray("x")), QVariant(QDateTime()),
                                QVariant(QVariantList{QVariant()}), QVariant(QVariantMap{{"deep", 1.5}})})
    EXPECT_THROW(store.setValue("key", value), FatalStop) << testing::PrintToString(value);
  EXPECT_EQ(store.variant("key"), "old");
}

TEST_F(PreferenceStoreTest, TwoProgramsShareTheFile) {
  PreferenceStore first(path());
  PreferenceStore second(path());
  EXPECT_TRUE(first.setValue("key", "first"));
  EXPECT_TRUE(second.setValue("key", "second"));
  EXPECT_EQ(first.variant("key"), "second");
}

TEST_F(PreferenceStoreTest, ReadsForeignTextsAsAbsentWithOneLine) {
  PreferenceStore store(path());
  const QByteArrayList texts{"",
                             "[",
                             "1",
                             "{}",
                             "[]",
                             "[1,2]",
                             "[null]",
                             "[1.5]",
                             "[1e300]",
                             "[[null]]",
                             "[[{\"a\":1},null]]",
                             "[\"\xff\"]",
                             "[{\"$date\":\"today\"}]",
                             "[{\"$date\":9223372036854775808}]",
                             QByteArray(5000, '[') + QByteArray(5000, ']')};
  for (const QByteArray& text : texts) {
    runSql(path(), "INSERT OR REPLACE INTO preferences VALUES('key', CAST(x'" + text.toHex() + "' AS TEXT))");
    const ConsoleLines console;
    EXPECT_FALSE(store.variant("key").isValid()) << text.toStdString();
    EXPECT_EQ(console.lines().size(), 1) << text.toStdString();
  }
  EXPECT_TRUE(store.contains("key"));
}

TEST_F(PreferenceStoreTest, AnEntryOfARecordFallsBackAlone) {
  PreferenceStore store(path());
  const QVariantMap left{{"left", 1LL}};
  const std::pair<QByteArray, QVariant> texts[] = {
      {R"([{"a":1.5,"left":1}])", left},
      {R"([{"a":null,"left":1}])", left},
      {R"([{"$a":1,"left":1}])", left},
      {R"([{"a":{"b":[null],"c":2},"left":1}])", left},
      {R"([[{"a":1.5,"left":1},{"b":["x",null]},{"left":1}]])", QVariantList{left, QVariantMap(), left}},
  };
  for (const auto& [text, expected] : texts) {
    runSql(path(), "INSERT OR REPLACE INTO preferences VALUES('key', '" + text + "')");
    EXPECT_EQ(PreferenceStore(path()).variant("key"), expected) << text.toStdString();
  }
}

TEST_F(PreferenceStoreTest, AnArrayThatIsOneTextIsSplitOnce) {
  const QVariantList array{"a", QVariantMap{{"b", 1LL}}, QVariantList{QVariantList()}};
  PreferenceStore(path()).setValue("array", "");
  const auto writeAsOneText = [&](const QByteArray& text) {
    runSql(path(), "UPDATE preferences SET value = '" + text + "' WHERE key = 'array'");
  };
  writeAsOneText(R"([["a",{"b":1},[[]]]])");
  EXPECT_EQ(PreferenceStore(path()).variant("array"), QVariant(array));
  EXPECT_EQ(PreferenceStore(path()).variant("array"), QVariant(array));
  EXPECT_EQ(runSql(path(), "SELECT count(*) FROM elements"), QStringList("3"));

  // An older program takes the array for empty and begins anew.
  writeAsOneText(R"([["new"]])");
  EXPECT_EQ(PreferenceStore(path()).variant("array"), QVariant(QVariantList{"new"} + array));
}

TEST_F(PreferenceStoreTest, ElementsAreChangedByTheirNumbersWhichAreNeverGivenTwice) {
  const Preference<QVariantList> array{QLatin1StringView("array")};
  PreferenceStore store(path());
  EXPECT_FALSE(store.holdsArray(array));
  const qlonglong first = store.setArray(array, 2, [](qsizetype index) { return index; }).value_or(0);
  const qlonglong newest = store.prependElement(array, "new").value_or(0);
  EXPECT_GT(newest, first);
  EXPECT_TRUE(store.removeElement(array, newest));
  EXPECT_GT(store.prependElement(array, "newer"), newest);
  EXPECT_TRUE(store.replaceElement(array, {first - 1, "last"}));
  EXPECT_TRUE(store.replaceElement(array, {first - 2, "nobody"})) << "passed over";
  EXPECT_TRUE(store.restoreElements(array, 1, [&](qsizetype) {
    return PreferenceStore::Element{newest, "new"};
  }));
  const QVariantList expected{"newer", "new", 0LL, "last"};
  EXPECT_EQ(PreferenceStore(path()).variant("array"), QVariant(expected));

  store.setValue("other", QVariantList{"x"});
  store.setValue("array", "no array");
  EXPECT_EQ(runSql(path(), "SELECT count(*) FROM elements"), QStringList("1"));
}

}  // namespace
}  // namespace tavi
