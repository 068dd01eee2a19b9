#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "platform/preferences.h"
#include "platform/test_support.h"

namespace tavi {
namespace {

class StartTest : public testing::Test {
 protected:
  void start(QProcess& process, const QStringList& arguments = {}) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_DATA_HOME", data.path());
    environment.insert("XDG_RUNTIME_DIR", data.path());
    environment.insert("LANGUAGE", "en");
    process.setProcessEnvironment(environment);
    process.start(TAVI_APPLICATION, arguments);
  }

  /// What the history begins with.
  QString newestTask() const {
    const QVariantList all =
        PreferenceStore(data.filePath("tavi/preferences.sqlite")).value(preferences::calculations);
    return all.value(0).toMap().value("latexString").toString();
  }

  QTemporaryDir data;
};

TEST_F(StartTest, ASecondOneEndsAndHandsItsTaskToTheFirst) {
  QProcess first;
  start(first, {"power", "-2", "3/2"});
  ASSERT_TRUE(waitUntil([&] { return QFile::exists(data.filePath("tavi/instance.socket")); }));
  for (const QStringList& arguments : {QStringList(), {"root", "3", "-8"}}) {
    QProcess second;
    start(second, arguments);
    EXPECT_TRUE(second.waitForFinished());
    EXPECT_EQ(second.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(second.exitCode(), 0);
    EXPECT_EQ(first.state(), QProcess::Running);
    const char* newest = arguments.isEmpty() ? "\\frac{3}{2}^{-2}" : "\\sqrt[3]{-8}";
    EXPECT_TRUE(waitUntil([&] { return newestTask() == newest; })) << newestTask().toStdString();
  }
  first.terminate();
  EXPECT_TRUE(first.waitForFinished());
}

TEST_F(StartTest, AnswersOrRefusesOnTheConsole) {
  const struct {
    QStringList arguments;
    int exitCode;
    const char* output;  ///< At the beginning.
    const char* error;
  } cases[] = {
      {{"--help"}, 0, "Usage: tavi\n", ""},
      {{"--version"}, 0, "tavi " TAVI_VERSION "\n", ""},
      {{"--verbose"}, 64, "", "tavi: no command --verbose\n\nUsage: tavi\n"},
      {{"power", "1", "1/0"}, 65, "", "tavi: "},
  };
  for (const auto& each : cases) {
    QProcess process;
    start(process, each.arguments);
    EXPECT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), each.exitCode);
    const QByteArray output = process.readAllStandardOutput();
    const QByteArray error = process.readAllStandardError();
    EXPECT_TRUE(output.startsWith(each.output) && output.isEmpty() == (*each.output == 0)) << output.data();
    EXPECT_TRUE(error.startsWith(each.error) && error.isEmpty() == (*each.error == 0)) << error.data();
  }
  EXPECT_FALSE(QFile::exists(data.filePath("tavi/instance.socket"))) << "none of them was started";
}

}  // namespace
}  // namespace tavi
