#include <gtest/gtest.h>

#include <QtGui/QGuiApplication>

#include "offscreen.h"

int main(int argc, char** argv) {
  tavi::useOffscreenScreen();
  const QGuiApplication application(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
