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
         "CREATE TABLE log(value);"
         "CREATE TRIGGER log AFTER UPDATE ON preferences BEGIN INSERT INTO log VALUES(new.value); END");
  manager.swapCalculations(0, 2);
  const QStringList saves =
      runSql(path_,
             "SELECT group_concat(json_extract(record.value, '$.latexString'), '') FROM log, "
             "json_each(log.value, '$[0]') AS record GROUP BY log.rowid");
  EXPECT_EQ(saves, QStringList({"ABA", "CBA"}));
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

TEST_F(CalcManagerTest, AListOfAnotherShapeIsReplacedByAnEmptyOne) {
  for (const QVariant& stored : {QVariant(), QVariant("text"), QVariant(5), QVariant(QVariantMap{{"0", "x"}}),
                                 QVariant(QVariantList{named("A").properties(), "text"})}) {
    store_.setValue("Calculations", stored);
    EXPECT_TRUE(CalcManager(store_).calculations().isEmpty());
    EXPECT_EQ(store_.variant("Calculations"), QVariant(QVariantList()));
  }
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
