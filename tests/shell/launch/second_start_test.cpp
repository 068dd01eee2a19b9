#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "platform/test_support.h"

namespace tavi {
namespace {

TEST(SecondStartTest, EndsAndLeavesTheFirstOneItsHistory) {
  const QTemporaryDir data;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("XDG_DATA_HOME", data.path());
  QProcess first;
  QProcess second;
  for (QProcess* process : {&first, &second}) {
    process->setProcessEnvironment(environment);
    process->setProgram(TAVI_APPLICATION);
  }
  first.start();
  ASSERT_TRUE(waitUntil([&] { return QFile::exists(data.filePath("tavi/instance.socket")); }));
  second.start();
  EXPECT_TRUE(second.waitForFinished());
  EXPECT_EQ(second.exitStatus(), QProcess::NormalExit);
  EXPECT_EQ(second.exitCode(), 0);
  EXPECT_EQ(first.state(), QProcess::Running);
  first.terminate();
  EXPECT_TRUE(first.waitForFinished());
}

}  // namespace
}  // namespace tavi
