#include "shell/calc_manager.h"

#include <QDateTime>

#include <gtest/gtest.h>

#include "number/fatal_stop.h"
#include "platform/test_support.h"

namespace tavi {
namespace {

Calculation named(const QString& latex) {
  return {{{"aTextField", "2"}}, latex, {}, {{"inputCalculationSelection", 1}, {"appKey", "QRX"}}};
}

QString order(const CalcManager& manager) {
  QString names;
  for (const Calculation& calculation : manager.calculations()) names += calculation.latexString;
  return names;
}

class CalcManagerTest : public testing::Test {
 protected:
  // What a restart would find.
  QString storedOrder() {
    CalcManager next(store_);
    return order(next);
  }

  QTemporaryDir folder_;
  QString path_ = folder_.filePath("preferences.sqlite");
  PreferenceStore store_{path_};
};

TEST_F(CalcManagerTest, TheFirstStartLeavesTheSampleAlone) {
  store_.setValue("Calculations", QVariantList{named("old").properties(), QVariantMap()});
  const QDateTime before = QDateTime::currentDateTimeUtc().addSecs(-1);
  CalcManager manager(store_);
  manager.runFirstStartStep();
  EXPECT_EQ(store_.variant("Calculations"),
            QVariant(QVariantList{QVariantMap{
                {"inputParameters", QVariantMap{{"aTextField", "-2"}, {"xTextField", "3/2"}}},
                {"latexString", R"(\frac{3}{2}^{-2})"},
                {"solutionSteps", QVariantList()},
                {"setupParameter", QVariantMap{{"inputCalculationSelection", 0LL}, {"appKey", "QRX"}}}}}));
  EXPECT_GT(store_.variant("firstAppStartAt").toDateTime(), before);

  manager.clearCalculations();
  CalcManager later(store_);
  later.runFirstStartStep();
  EXPECT_TRUE(later.calculations().isEmpty());
}

TEST_F(CalcManagerTest, ChangesKeepTheirOrderAndAreWrittenAtOnce) {
  CalcManager manager(store_);
  for (const char* name : {"A", "B", "C"}) manager.addCalculation(named(name));
  EXPECT_EQ(order(manager), "CBA");
  manager.swapCalculations(0, 2);
  EXPECT_EQ(order(manager), "ABC");
  manager.swapCalculations(0, 1);
  EXPECT_EQ(order(manager), "BAC");
  EXPECT_EQ(storedOrder(), "BAC");
  manager.removeCalculation(1);
  manager.addCalculation(named("C"));
  EXPECT_EQ(storedOrder(), "CBC");
  EXPECT_EQ(CalcManager(store_).calculation(0), named("C"));
}

TEST_F(CalcManagerTest, ASwapSavesAfterEachHalf) {
  CalcManager manager(store_);
  for (const char* name : {"C", "B", "A"}) manager.addCalculation(named(name));
  runSql(path_,
         "CREATE TABLE log(number, value);"
         "CREATE TRIGGER log AFTER UPDATE ON elements BEGIN "
         "INSERT INTO log VALUES(new.number, new.value); END");
  const QString oldest = runSql(path_, "SELECT min(number) FROM elements").front();
  const QString newest = runSql(path_, "SELECT max(number) FROM elements").front();
  manager.swapCalculations(0, 2);
  EXPECT_EQ(runSql(path_, "SELECT number || json_extract(value, '$[0].latexString') FROM log"),
            QStringList({oldest + 'A', newest + 'C'}))
      << "in between the first one stands twice";
}

TEST_F(CalcManagerTest, WhatWasRemovedCanBePutBackWhereItStood) {
  CalcManager manager(store_);
  for (const char* name : {"D", "C", "B", "A"}) manager.addCalculation(named(name));
  const StoredCalculations newest = manager.removeCalculation(0);
  const StoredCalculations middle = manager.removeCalculation(1);
  manager.addCalculation(named("E"));
  EXPECT_EQ(manager.restoreCalculations(middle), 2);
  EXPECT_EQ(manager.restoreCalculations(newest), 1);
  EXPECT_EQ(order(manager), "EABCD");
  EXPECT_EQ(storedOrder(), "EABCD");

  const StoredCalculations all = manager.clearCalculations();
  manager.addCalculation(named("F"));
  EXPECT_EQ(manager.restoreCalculations(all), 1);
  manager.swapCalculations(1, 2);
  EXPECT_EQ(order(manager), "FAEBCD");
  EXPECT_EQ(storedOrder(), "FAEBCD");
}

TEST_F(CalcManagerTest, TheMomentOfARecordStandsBesideItsFields) {
  Calculation dated = named("A");
  EXPECT_FALSE(dated.properties().contains("calculatedAt")) << "an earlier version's record stays as it is";
  dated.calculatedAt = QDateTime::fromMSecsSinceEpoch(1764063147123, Qt::UTC);
  CalcManager manager(store_);
  for (const Calculation& each : {named("B"), dated}) manager.addCalculation(each);
  EXPECT_EQ(CalcManager(store_).calculations(), QList({dated, named("B")}));
  manager.swapCalculations(0, 1);
  EXPECT_EQ(CalcManager(store_).calculations(), QList({named("B"), dated})) << "it goes with its record";

  for (const char* bad : {"1764063147123", "\"today\"", "null", R"({"$date":"1"})", R"({"$date":1.5})"}) {
    runSql(path_, QByteArray("UPDATE elements SET value = json_set(value, '$[0].calculatedAt', json('") +
                      bad + "')) WHERE value LIKE '%\"A\"%'");
    PreferenceStore again(path_);
    EXPECT_EQ(CalcManager(again).calculations(), QList({named("B"), named("A")})) << bad;
  }
}

TEST_F(CalcManagerTest, AppendsWhatIsNotThereYetAndWithdrawsIt) {
  CalcManager manager(store_);
  for (const char* name : {"B", "A"}) manager.addCalculation(named(name));
  const StoredCalculations removed = manager.removeCalculation(1);
  const QList<Calculation> others{named("C"), named("A"), named("C"), named("D")};
  const StoredCalculations appended = manager.appendCalculations(others);
  EXPECT_EQ(storedOrder(), "ACCD") << "A is there; C stands twice in what is appended";
  EXPECT_TRUE(manager.appendCalculations(others).isEmpty());
  EXPECT_EQ(manager.restoreCalculations(removed), 1);
  EXPECT_EQ(storedOrder(), "ABCCD");

  manager.addCalculation(named("E"));
  manager.swapCalculations(0, 5);
  EXPECT_EQ(storedOrder(), "DABCCE");
  manager.withdrawCalculations(appended);
  EXPECT_EQ(order(manager), "DABE") << "a place that another record has taken is left alone";
  EXPECT_EQ(storedOrder(), "DABE");
  EXPECT_EQ(manager.appendCalculations(others).size(), 2);
  EXPECT_EQ(storedOrder(), "DABECC");
}

TEST_F(CalcManagerTest, OfTwoProcessesNeitherLosesWhatTheOtherKeeps) {
  CalcManager first(store_);
  for (const char* name : {"C", "B", "A"}) first.addCalculation(named(name));
  PreferenceStore others(path_);
  CalcManager second(others);
  ASSERT_EQ(second.calculations().size(), 3) << "before the other one adds more";
  first.addCalculation(named("D"));
  second.addCalculation(named("E"));
  first.removeCalculation(2);
  second.removeCalculation(2);
  second.removeCalculation(2);
  first.addCalculation(named("F"));
  EXPECT_EQ(storedOrder(), "FEDA") << "both have removed B, and one of them C";
}

TEST_F(CalcManagerTest, WhatTheDiskRefusesIsKeptUntilItTakesIt) {
  CalcManager manager(store_);
  int refusals = 0;
  store_.setRefusalHandler([&refusals] { ++refusals; });
  for (const char* name : {"B", "A"}) manager.addCalculation(named(name));
  runSql(path_, "CREATE TRIGGER refusal BEFORE INSERT ON elements BEGIN SELECT RAISE(ABORT, 'full'); END");
  EXPECT_EQ(refusals, 0);
  manager.addCalculation(named("C"));
  manager.removeCalculation(2);
  EXPECT_EQ(refusals, 1) << "said once";
  EXPECT_EQ(order(manager), "CA");
  EXPECT_EQ(storedOrder(), "AB") << "nothing acknowledged is lost";
  runSql(path_, "DROP TRIGGER refusal");
  manager.swapCalculations(0, 1);
  EXPECT_EQ(storedOrder(), "AC");
  manager.removeCalculation(0);
  manager.addCalculation(named("D"));
  EXPECT_EQ(storedOrder(), "DC");

  runSql(path_, "CREATE TRIGGER refusal BEFORE DELETE ON elements BEGIN SELECT RAISE(ABORT, 'full'); END");
  const StoredCalculations removed = manager.clearCalculations();
  EXPECT_EQ(storedOrder(), "DC");
  manager.restoreCalculations(removed);
  EXPECT_EQ(order(manager), "DC") << "put back, though they were never gone";
  runSql(path_, "DROP TRIGGER refusal");
  manager.addCalculation(named("E"));
  EXPECT_EQ(storedOrder(), "EDC");
}

TEST_F(CalcManagerTest, ABadFieldFallsBackAloneAndTheHistoryStays) {
  const QByteArray bad =
      R"({"inputParameters":{"aTextField":1.5},"latexString":null,"solutionSteps":[],"setupParameter":{"appKey":"QRX"}})";
  const QByteArray good = R"({"latexString":"A"})";
  Calculation expected;
  expected.setupParameter = {{"appKey", "QRX"}};
  store_.setValue("Calculations", QVariantList());
  const auto expectBoth = [&] {
    PreferenceStore again(path_);
    const CalcManager manager(again);
    ASSERT_EQ(manager.calculations().size(), 2);
    EXPECT_EQ(manager.calculation(0), expected);
    EXPECT_EQ(manager.calculation(1).latexString, "A");
  };
  runSql(path_, "UPDATE preferences SET value = '[[" + bad + ',' + good + "]]' WHERE key = 'Calculations'");
  expectBoth();
  runSql(path_, "UPDATE elements SET value = '[" + bad + "]' WHERE value NOT LIKE '%\"A\"%'");
  expectBoth();
}

TEST_F(CalcManagerTest, AnIndexOutsideTheListIsAFatalStop) {
  CalcManager manager(store_);
  manager.addCalculation(named("A"));
  for (const qsizetype index : {-1, 1}) {
    EXPECT_THROW(manager.removeCalculation(index), FatalStop);
    EXPECT_THROW(manager.swapCalculations(0, index), FatalStop);
    EXPECT_THROW(manager.swapCalculations(index, 0), FatalStop);
    EXPECT_THROW(manager.calculation(index), FatalStop);
  }
  EXPECT_EQ(storedOrder(), "A");
}

TEST_F(CalcManagerTest, ClearingLeavesAnEmptyListAndThePickedRecord) {
  CalcManager manager(store_);
  manager.addCalculation(named("A"));
  manager.setCurrentSelectedCalculation(named("picked"));
  manager.clearCalculations();
  EXPECT_EQ(store_.variant("Calculations"), QVariant(QVariantList()));
  EXPECT_EQ(CalcManager(store_).currentSelectedCalculation(), named("picked"));
}

TEST_F(CalcManagerTest, APickedRecordOutlivesTheProcessAndASnapshotDoesNot) {
  CalcManager manager(store_);
  manager.setCurrentCalculation(named("snapshot"));
  EXPECT_FALSE(store_.contains("CurrentSelectedCalculation"));
  manager.setCurrentSelectedCalculation(named("picked"));

  store_.setValue("CurrentSelectedCalculation", "something else");
  manager.setCurrentCalculation(named("snapshot"));
  CalcManager next(store_);
  EXPECT_EQ(next.currentSelectedCalculation(), named("picked"));
  EXPECT_EQ(next.currentCalculation(), std::nullopt);
  EXPECT_FALSE(store_.contains("CurrentCalculation"));

  next.setCurrentSelectedCalculation(std::nullopt);
  EXPECT_FALSE(store_.contains("CurrentSelectedCalculation"));
}

TEST_F(CalcManagerTest, ASnapshotFromElsewhereIsRead) {
  store_.setValue("CurrentCalculation", named("elsewhere").properties());
  EXPECT_EQ(CalcManager(store_).currentCalculation(), named("elsewhere"));
}

TEST_F(CalcManagerTest, ALongListIsReadInPiecesBetweenWhichRecordsAreAdded) {
  constexpr qsizetype count = 2500;
  QVariantList records;
  for (qsizetype i = 0; i < count; ++i) records.append(named(QString::number(i)).properties());
  store_.setValue("Calculations", records);
  CalcManager manager(store_);
  manager.addCalculation(named("first"));
  EXPECT_TRUE(manager.readAhead());
  manager.addCalculation(named("second"));
  int pieces = 0;
  while (manager.readAhead()) ASSERT_LT(++pieces, count);
  EXPECT_FALSE(manager.readAhead());
  ASSERT_EQ(manager.calculations().size(), count + 2);
  EXPECT_EQ(manager.calculation(0).latexString, "second");
  EXPECT_EQ(manager.calculation(1).latexString, "first");
  EXPECT_EQ(manager.calculation(count + 1).latexString, QString::number(count - 1));
  EXPECT_EQ(storedOrder(), order(manager));

  // One that is asked for in between waits for the rest; what was added to a list of another shape stays.
  records.last() = "text";
  store_.setValue("Calculations", records);
  CalcManager other(store_);
  other.addCalculation(named("kept"));
  EXPECT_EQ(order(other), "kept");
  EXPECT_EQ(storedOrder(), "kept");
}

TEST_F(CalcManagerTest, AListOfAnotherShapeIsSetAsideAndReplacedByAnEmptyOne) {
  EXPECT_TRUE(CalcManager(store_).calculations().isEmpty());
  EXPECT_EQ(store_.variant("Calculations"), QVariant(QVariantList()));
  const QVariantList shapes{"text", 5, QVariantMap{{"0", "x"}},
                            QVariantList{named("A").properties(), "text"}};
  for (qsizetype i = 0; i < shapes.size(); ++i) {
    store_.setValue("Calculations", shapes[i]);
    EXPECT_TRUE(CalcManager(store_).calculations().isEmpty());
    EXPECT_EQ(store_.variant("Calculations"), QVariant(QVariantList()));
    EXPECT_EQ(store_.variant("Calculations.unreadable-" + QString::number(i + 1)), shapes[i]);
  }
  runSql(path_, "UPDATE preferences SET value = 'no JSON' WHERE key = 'Calculations'");
  EXPECT_TRUE(CalcManager(store_).calculations().isEmpty());
  EXPECT_EQ(runSql(path_, "SELECT value FROM preferences WHERE key = 'Calculations.unreadable-5'"),
            QStringList("no JSON"));
}

TEST(CalculationTest, AFieldOfAnotherShapeKeepsItsDefaultAlone) {
  const Calculation whole{{{"aTextField", "-2"}}, "x", {{{"title", "a"}}}, {{"appKey", "QRX"}}};
  EXPECT_EQ(Calculation(whole.properties()), whole);
  EXPECT_EQ(Calculation(QVariantMap()), Calculation());

  struct Case {
    const char* field;
    QList<QVariant> wrong;
    void (*makeDefault)(Calculation&);
  };
  const Case cases[] = {
      {"inputParameters",
       {QVariant(), "text", QVariantList(), QVariantMap{{"aTextField", "1"}, {"xTextField", 2}}},
       [](Calculation& c) { c.inputParameters = {}; }},
      {"latexString", {QVariant(), 5, true, QVariantMap()}, [](Calculation& c) { c.latexString = {}; }},
      {"solutionSteps",
       {QVariant(), "text", QVariantMap(), QVariantList{QVariantMap(), "text"}},
       [](Calculation& c) { c.solutionSteps = {}; }},
      {"setupParameter", {QVariant(), "text", QVariantList()}, [](Calculation& c) { c.setupParameter = {}; }},
  };
  for (const Case& each : cases) {
    Calculation expected = whole;
    each.makeDefault(expected);
    for (const QVariant& wrong : each.wrong) {
      QVariantMap properties = whole.properties();
      properties[each.field] = wrong;
      EXPECT_EQ(Calculation(properties), expected) << each.field << testing::PrintToString(wrong);
    }
  }
}

}  // namespace
}  // namespace tavi
