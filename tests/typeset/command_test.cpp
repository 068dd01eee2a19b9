#include <string>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>

namespace tavi::cli {
namespace {

using nlohmann::json;

struct Finished {
  QByteArray output;
  int exitCode = -1;
};

Finished run(const QStringList& arguments, const QByteArray& input = {}) {
  QProcess process;
  process.start(QStringLiteral(TAVI_CLI), arguments);
  process.write(input);
  process.closeWriteChannel();
  process.waitForFinished();
  return {process.readAllStandardOutput(), process.exitCode()};
}

TEST(TypesetCommand, AnswersEachLineByOne) {
  const Finished finished =
      run({"typeset", "--json-lines", "--size", "10"}, "\\frac{x}{2}\n\n2\\foo\n\xff\n");
  EXPECT_EQ(finished.exitCode, 0);
  const auto lines = finished.output.trimmed().split('\n');
  ASSERT_EQ(lines.size(), 4);

  const json fraction = json::parse(lines[0].toStdString());
  EXPECT_EQ(fraction["latex"], "\\frac{x}{2}");
  EXPECT_EQ(fraction["size"], 10);
  EXPECT_EQ(fraction["error"], nullptr);
  ASSERT_EQ(fraction["glyphs"].size(), 2U);
  EXPECT_EQ(fraction["glyphs"][0]["cp"], 0x1D465);
  EXPECT_EQ(fraction["glyphs"][0]["size"], 10);
  EXPECT_GT(fraction["glyphs"][0]["y"], 0);
  EXPECT_LT(fraction["glyphs"][1]["y"], 0);
  ASSERT_EQ(fraction["rules"].size(), 1U);
  EXPECT_NEAR(fraction["rules"][0]["y"], 2.3, 1e-6);
  EXPECT_NEAR(fraction["rules"][0]["h"], 0.4, 1e-6);
  EXPECT_NEAR(fraction["width"], fraction["rules"][0]["w"].get<double>() + 2.4, 1e-6);

  EXPECT_EQ(json::parse(lines[1].toStdString())["width"], 0);
  EXPECT_EQ(json::parse(lines[2].toStdString())["error"], "unknown command \\foo at character 2");
  EXPECT_EQ(json::parse(lines[3].toStdString())["error"], "unreadable character at character 1");
}

TEST(TypesetCommand, AnswersALineBeforeTheNextComes) {
  QProcess process;
  process.start(QStringLiteral(TAVI_CLI), {"typeset", "--json-lines"});
  process.write("2\n");
  ASSERT_TRUE(process.waitForReadyRead(10000));
  EXPECT_TRUE(process.readAllStandardOutput().endsWith("\n"));
  process.closeWriteChannel();
  process.waitForFinished();
}

TEST(RenderCommand, DrawsTheWorkingToPngSvgAndPdf) {
  const QTemporaryDir directory;
  const QString name = directory.filePath("working");
  const Finished finished = run({"render", "power", "-2", "3/2", "--png", name + ".png", "--svg",
                                 name + ".svg", "--pdf", name + ".pdf", "--scale", "1"});
  ASSERT_EQ(finished.exitCode, 0);
  const QImage picture(name + ".png");
  EXPECT_EQ(picture.width(), 412) << "a phone's page";
  EXPECT_GT(picture.height(), 600);
  EXPECT_EQ(picture.pixelColor(0, 0), QColor("#eceff1"));
  EXPECT_EQ(picture.pixelColor(picture.width() / 2, 20), QColor(Qt::white));
  for (const auto& [ending, start] : {std::pair{".svg", "<?xml"}, std::pair{".pdf", "%PDF"}}) {
    QFile file(name + ending);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    EXPECT_TRUE(bytes.startsWith(start));
    EXPECT_FALSE(bytes.contains("<text")) << "a picture depends on no font";
  }

  ASSERT_EQ(run({"render", "power", "-2", "3/2", "--dark", "--png", name + "2.png"}).exitCode, 0);
  const QImage dark(name + "2.png");
  EXPECT_NEAR(dark.width(), 2 * picture.width(), 2);
  EXPECT_EQ(dark.pixelColor(0, 0), QColor("#121212"));
}

TEST(RenderCommand, TitlesAreEnglishUnlessAnotherLanguageIsAskedFor) {
  const QTemporaryDir directory;
  const auto drawn = [&](const QStringList& options) {
    const QString file = directory.filePath("working.svg");
    EXPECT_EQ(run(QStringList{"render", "power", "2", "6/4", "--svg", file} + options).exitCode, 0);
    QFile picture(file);
    EXPECT_TRUE(picture.open(QIODevice::ReadOnly));
    return picture.readAll();
  };
  const QByteArray picture = drawn({});
  EXPECT_EQ(drawn({"--language", "en"}), picture);
  EXPECT_NE(drawn({"--language", "de"}), picture);
}

TEST(Commands, ExitCodesTellWhatWentWrong) {
  struct Case {
    QStringList arguments;
    int exitCode;
  };
  const Case cases[] = {
      {{"typeset", "--help"}, 0},
      {{"typeset"}, 64},
      {{"typeset", "--json-lines", "--size"}, 64},
      {{"typeset", "--json-lines", "--size", "0"}, 64},
      {{"typeset", "--json-lines", "--size", "nan"}, 64},
      {{"render", "--help"}, 0},
      {{"render", "power", "2", "3"}, 64},
      {{"render", "power", "2", "--png", "x.png"}, 64},
      {{"render", "cube", "2", "3", "--png", "x.png"}, 64},
      {{"render", "power", "2", "3", "--png", "x.png", "--scale", "0"}, 64},
      {{"render", "power", "2", "3", "--png", "x.png", "--language", "tlh"}, 64},
      {{"render", "power", "1/", "3", "--png", "x.png"}, 2},
      {{"render", "power", "10001", "3", "--png", "x.png"}, 4},
      {{"render", "power", "900", "12345", "--png", "x.png", "--scale", "20"}, 73},
      {{"render", "power", "2", "3", "--png", "/no/such/folder/x.png"}, 73},
  };
  for (const auto& [arguments, exitCode] : cases) {
    EXPECT_EQ(run(arguments).exitCode, exitCode) << arguments.join(' ').toStdString();
  }
}

}  // namespace
}  // namespace tavi::cli
