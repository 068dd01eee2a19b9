#include "shell/history_file.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tavi {
namespace {

using Fault = HistoryFileFault;

QByteArray fileOf(const QByteArray& records) {
  return R"({"format":"tavi-history","version":1,"calculations":[)" + records + "]}";
}

std::optional<Fault> faultOf(const QByteArray& bytes) {
  const auto read = readHistoryFile(bytes);
  const auto* fault = std::get_if<Fault>(&read);
  return fault ? std::optional(*fault) : std::nullopt;
}

TEST(HistoryFile, BringsBackEveryRecordAsItWas) {
  Calculation full{{{"aTextField", "-2"}, {"xTextField", "3/2 \"π\"\n"}},
                   R"(\frac{3}{2}^{-2})",
                   {{{"$title", "a step"}}},
                   {{"inputCalculationSelection", 1LL}, {"appKey", "QRX"}}};
  full.calculatedAt = QDateTime::fromMSecsSinceEpoch(1764063147123, Qt::UTC);
  for (const QList<Calculation>& history : {QList<Calculation>{}, QList{full, Calculation(), full}}) {
    const QByteArray bytes = historyFile(history);
    const auto read = readHistoryFile(bytes);
    ASSERT_TRUE(std::holds_alternative<QList<Calculation>>(read)) << bytes.constData();
    EXPECT_EQ(std::get<QList<Calculation>>(read), history);
  }
}

TEST(HistoryFile, TakesAllOfAFileOrNothing) {
  struct Case {
    QByteArray bytes;
    std::optional<Fault> fault;
  };
  const QByteArray good = R"({"latexString":"2"})";
  const QByteArray whole = historyFile({Calculation({}, "2", {}, {})});
  const Case cases[] = {
      {fileOf(good), {}},
      {fileOf(good + R"(,{"later":1,"latexString":"3"})"), {}},
      {"", Fault::noHistory},
      {"\xff\xfe", Fault::noHistory},
      {"[]", Fault::noHistory},
      {whole + whole, Fault::noHistory},
      {whole + ',' + whole, Fault::noHistory},
      {whole.chopped(4), Fault::noHistory},
      {QByteArray(whole).replace("tavi", "else"), Fault::noHistory},
      {QByteArray(whole).replace("\"version\":1", "\"version\":2"), Fault::noHistory},
      {R"({"format":"tavi-history","version":1})", Fault::noHistory},
      {R"({"format":"tavi-history","version":1,"calculations":{}})", Fault::noHistory},
      {fileOf(good + ",1"), Fault::noHistory},
      {fileOf(good + ",null"), Fault::noHistory},
      {fileOf(good + R"(,{"latexString":3})"), Fault::noHistory},
      {fileOf(good + R"(,{"inputParameters":{"aTextField":3}})"), Fault::noHistory},
      {fileOf(good + R"(,{"inputParameters":["3"]})"), Fault::noHistory},
      {fileOf(good + R"(,{"solutionSteps":[1]})"), Fault::noHistory},
      {fileOf(good + R"(,{"setupParameter":{"inputCalculationSelection":1.5}})"), Fault::noHistory},
      {fileOf(good + R"(,{"setupParameter":{"inputCalculationSelection":true}})"), Fault::noHistory},
      {fileOf(good + R"(,{"calculatedAt":"2026-11-25"})"), Fault::noHistory},
      {fileOf(R"({"latexString":")" + QByteArray(100'001, '2') + R"("})"), Fault::noHistory},
      {QByteArray(5000, '['), Fault::noHistory},
      {fileOf("{}" + QByteArray(",{}").repeated(mostImportedCalculations)), Fault::tooLarge},
      {QByteArray(longestHistoryFile + 1, ' '), Fault::tooLarge}};
  for (const Case& each : cases)
    EXPECT_EQ(faultOf(each.bytes), each.fault) << each.bytes.left(200).constData();
}

TEST(HistoryFile, IsReadWhereItLies) {
  const QTemporaryDir folder;
  const QString path = folder.filePath("history.json");
  EXPECT_EQ(std::get<Fault>(readHistoryFileAt(path)), Fault::unreadable);
  EXPECT_EQ(std::get<Fault>(readHistoryFileAt(folder.path())), Fault::unreadable);
  EXPECT_EQ(std::get<Fault>(readHistoryFileAt("/dev/zero")), Fault::tooLarge) << "an end it has not";
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(historyFile({Calculation()}));
  file.close();
  EXPECT_EQ(std::get<QList<Calculation>>(readHistoryFileAt(path)).size(), 1);
}

}  // namespace
}  // namespace tavi
