#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QStandardPaths>

#include <gtest/gtest.h>

#include <QtQml/qqmlextensionplugin.h>

#include "offscreen.h"

Q_IMPORT_QML_PLUGIN(TaviPlugin)

int main(int argc, char** argv) {
  tavi::useOffscreenScreen();
  const QGuiApplication application(argc, argv);
  QStandardPaths::setTestModeEnabled(true);
  // The module's types are there for C++ once some QML has asked for them.
  QQmlEngine engine;
  QQmlComponent(&engine).setData("import Tavi\nView {}", {});
  testing::InitGoogleTest(&argc, argv);
  testing::FLAGS_gtest_death_test_style = "threadsafe";
  return RUN_ALL_TESTS();
}
