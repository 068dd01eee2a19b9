#pragma once

#include <QtCore/QtGlobal>

namespace tavi {

// Lets the tests run without a display and on any machine alike: each move of a finger reaches the items by
// itself, where Qt would join the moves that come within one frame. To be called before the application is
// made.
inline void useOffscreenScreen() {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QML_NO_TOUCH_COMPRESSION", "1");
}

}  // namespace tavi
