#include "solution/video_collection_table_view_cell.h"

#include <QGuiApplication>
#include <QWindow>

#include "number/fatal_stop.h"

namespace tavi {

namespace {

double widthOfFirstWindow() {
  const QWindowList windows = QGuiApplication::topLevelWindows();
  if (windows.isEmpty()) fatalStop("a row of videos without a window");
  return windows.first()->width();
}

}  // namespace

double videoRowHeight() {
  static const double height = widthOfFirstWindow();
  return height;
}

}  // namespace tavi
