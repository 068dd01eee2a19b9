#include <QCoreApplication>
#include <QStandardPaths>

#include <gtest/gtest.h>

#include "platform/store_children.h"

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  QStandardPaths::setTestModeEnabled(true);
  if (application.arguments().value(1) == u"--child")
    return tavi::runStoreChild(application.arguments().value(2), application.arguments().value(3));
  testing::InitGoogleTest(&argc, argv);
  testing::FLAGS_gtest_death_test_style = "threadsafe";
  return RUN_ALL_TESTS();
}
