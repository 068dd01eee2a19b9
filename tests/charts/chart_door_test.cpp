// What tavi-cli chart answers to other programs. An example is a file of a request beside one of its answer.
#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>

namespace tavi {
namespace {

using nlohmann::json;

std::vector<json> answers(const std::string& lines) {
  QProcess process;
  process.start(QStringLiteral(TAVI_CLI), {"chart", "--json-lines"});
  process.write(lines.data(), static_cast<qsizetype>(lines.size()));
  process.closeWriteChannel();
  process.waitForFinished();
  EXPECT_EQ(process.exitCode(), 0);
  std::vector<json> read;
  for (const QByteArray& line : process.readAllStandardOutput().split('\n')) {
    if (!line.isEmpty()) read.push_back(json::parse(line.toStdString()));
  }
  return read;
}

// Alike but for the last digits of numbers, where the libraries of mathematics differ.
bool areAlike(const json& first, const json& second) {
  if (first.is_number() && second.is_number()) {
    const auto number = first.get<double>();
    return std::abs(number - second.get<double>()) <= 1e-9 * std::max(1.0, std::abs(number));
  }
  if (!first.is_structured() || first.type() != second.type()) return first == second;
  const auto left = first.items();
  const auto right = second.items();
  return std::equal(left.begin(), left.end(), right.begin(), right.end(), [](const auto& a, const auto& b) {
    return a.key() == b.key() && areAlike(a.value(), b.value());
  });
}

TEST(ChartDoor, AnswersTheExamples) {
  constexpr std::string_view answerEnding = ".expected.json";
  std::vector<std::filesystem::path> files;
  for (const auto& entry : std::filesystem::directory_iterator(TAVI_CHART_EXAMPLES)) {
    if (!entry.path().string().ends_with(answerEnding)) files.push_back(entry.path());
  }
  ASSERT_GE(files.size(), 13U);
  std::string lines;
  for (const auto& file : files) lines += json::parse(std::ifstream(file)).dump() + '\n';
  const std::vector<json> read = answers(lines);
  ASSERT_EQ(read.size(), files.size());
  for (std::size_t index = 0; index < files.size(); ++index) {
    std::filesystem::path answer = files[index];
    const json expected = json::parse(std::ifstream(answer.replace_extension(answerEnding)));
    EXPECT_TRUE(areAlike(read[index], expected)) << files[index] << '\n' << read[index];
  }
}

TEST(ChartDoor, GoesOnBehindLinesThatAreNoRequests) {
  const std::string line = R"({"id":0,"width":1,"charts":[]})";
  const std::string deep = R"({"id":)" + std::string(100000, '[') + std::string(100000, ']') + '}';
  std::string many = R"({"id":0,"width":1,"charts":[0)";
  for (int index = 0; index < 1'000'000; ++index) many += ",{}";
  const auto chart = [](const std::string& fields) {
    return R"({"id":0,"width":1,"charts":[{"frameRatio":1,)" + fields + "}]}";
  };
  const std::string wrong[] = {
      "",
      "{",
      "[]",
      "\xff",
      deep,
      many + "]}",
      std::string(17'000'000, ' '),
      R"({"id":0,"charts":[]})",
      R"({"id":0,"width":true,"charts":[]})",
      R"({"id":0,"width":1e999,"charts":[]})",
      R"({"id":0,"width":1,"charts":{}})",
      R"({"id":0,"width":1,"charts":[[]]})",
      chart(R"("kind":"PieChartData")"),
      chart(R"("kind":"LineChartData")"),
      chart(R"("kind":"TrigonometricChartData","offset":0,"periodLength":1,"amplitude":1,"type":"cot")"),
      chart(R"("kind":"UnitCircleChartData","quadrant":"V")"),
      chart(R"("kind":"UnitCircleChartData","fullCircles":1.5)"),
      chart(R"("kind":"UnitCircleChartData","fullCircles":9223372036854775808)"),
      chart(R"("kind":"HistogramChartData","chartTitle":"","dataName":"","xAxisName":"",)"
            R"("dataSetWithColorTheme":[{"hexColor":"","dataValues":[[0,"1"]]}])"),
  };
  for (const std::string& text : wrong) {
    const std::vector<json> read = answers(text + '\n' + line + '\n');
    const std::string_view start = std::string_view(text).substr(0, 200);
    ASSERT_EQ(read.size(), 2U) << start;
    EXPECT_EQ(read[0].value("id", json(0)), nullptr) << start;
    EXPECT_TRUE(read[0].contains("error")) << start;
    EXPECT_EQ(read[1], json::parse(R"({"id":0,"frame":null,"view":null})"));
  }
}

TEST(ChartDoor, TellsAFatalStopAndGoesOn) {
  const std::vector<json> read = answers(
      R"({"id":{"a":[1]},"width":1,"charts":[{"kind":"BernoulliDistributionTreeChartData","frameRatio":1,)"
      R"("chartTitle":"","chartColorHexCode":"","probabilityOfSuccess":0.5,"hits":1,"trials":21}]})"
      "\n"
      R"({"width":100,"charts":[{"kind":"ChartData","frameRatio":2}]})"
      "\n");
  ASSERT_EQ(read.size(), 2U);
  EXPECT_EQ(read[0]["id"], json::parse(R"({"a":[1]})"));
  EXPECT_TRUE(read[0].contains("fatal"));
  EXPECT_EQ(read[1], json::parse(R"({"id":null,"frame":[5,2.5,90,45],"view":null})"));
}

TEST(ChartDoor, AnswersATreeThatLeavesInPieces) {
  const std::vector<json> read =
      answers(R"({"id":1,"width":1,"charts":[{"kind":"BernoulliDistributionTreeChartData","frameRatio":1,)"
              R"("chartTitle":"","chartColorHexCode":"","probabilityOfSuccess":0.5,"hits":1,"trials":12}]})"
              "\n");
  ASSERT_EQ(read.size(), 1U);
  const json& nodes = read[0]["view"]["nodes"];
  ASSERT_EQ(nodes.size(), 8191U);
  EXPECT_EQ(nodes[0]["chain"], json::array());
  EXPECT_EQ(nodes.back()["leaf"], "0.02%   111111111111");
}

int exitCodeOf(const QStringList& arguments) {
  QProcess process;
  process.start(QStringLiteral(TAVI_CLI), QStringList{"chart"} + arguments);
  process.waitForFinished();
  return process.exitCode();
}

TEST(ChartCommand, DrawsTheRowInItsSizeOrInAnother) {
  const QTemporaryDir directory;
  const QString example = TAVI_CHART_EXAMPLES "/sine.json";
  const QString name = directory.filePath("row");
  ASSERT_EQ(exitCodeOf({example, "--png", name + ".png", "--svg", name + ".svg", "--pdf", name + ".pdf"}), 0);
  EXPECT_EQ(QImage(name + ".png").size(), QSize(412, 206));
  EXPECT_EQ(QImage(name + ".png").pixelColor(0, 0), QColor("#eceff1"));
  for (const auto& [ending, start] : {std::pair{".svg", "<?xml"}, std::pair{".pdf", "%PDF"}}) {
    QFile file(name + ending);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    EXPECT_TRUE(bytes.startsWith(start));
    EXPECT_FALSE(bytes.contains("<text")) << "a picture depends on no font";
  }
  ASSERT_EQ(exitCodeOf({example, "--size", "300x200", "--scale", "2", "--dark", "--png", name + "2.png"}), 0);
  EXPECT_EQ(QImage(name + "2.png").size(), QSize(600, 400));
  EXPECT_EQ(QImage(name + "2.png").pixelColor(0, 0), QColor("#121212"));
}

TEST(ChartCommand, ExitCodesTellWhatWentWrong) {
  const QTemporaryDir directory;
  const auto written = [&](const char* name, const char* text) {
    QFile file(directory.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
    return file.fileName();
  };
  const QString png = directory.filePath("x.png");
  const QString example = TAVI_CHART_EXAMPLES "/sine.json";
  const QString empty = written("empty", R"({"width":412,"charts":[]})");
  const QString flat = written("flat", R"({"width":412,"charts":[{"kind":"ChartData","frameRatio":1e9}]})");
  const QString endless =
      written("endless", R"({"width":412,"charts":[{"kind":"ChartData","frameRatio":0}]})");
  struct Case {
    QStringList arguments;
    int exitCode;
  };
  const Case cases[] = {
      {{"--help"}, 0},
      {{}, 64},
      {{example}, 64},
      {{example, example, "--png", png}, 64},
      {{example, "--png"}, 64},
      {{example, "--png", png, "--size", "300"}, 64},
      {{example, "--png", png, "--size", "0x10"}, 64},
      {{example, "--png", png, "--size", "nanx10"}, 64},
      {{example, "--png", png, "--json-lines"}, 64},
      {{directory.filePath("missing"), "--png", png}, 65},
      {{directory.path(), "--png", png}, 65},
      {{written("text", "[1"), "--png", png}, 65},
      {{empty, "--png", png}, 65},
      {{flat, "--png", png}, 65},
      {{endless, "--png", png}, 3},
      {{example, "--png", "/no/such/folder/x.png"}, 73},
  };
  for (const auto& [arguments, exitCode] : cases)
    EXPECT_EQ(exitCodeOf(arguments), exitCode) << arguments.join(' ').toStdString();
}

}  // namespace
}  // namespace tavi
