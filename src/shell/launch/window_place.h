#pragma once

#include <QRect>
#include <QTimer>
#include <QVariantMap>
#include <QWindow>
#include <optional>
#include <span>

#include "platform/preference_store.h"

namespace tavi {

/// Where a window was left: its place while it is neither maximised nor minimised, and whether it is
/// maximised.
struct WindowPlace {
  QRect normal;
  bool isMaximized = false;

  friend bool operator==(const WindowPlace&, const WindowPlace&) = default;
};

/// As it is stored, and back; absent for what is no such record.
QVariantMap record(const WindowPlace& place);
std::optional<WindowPlace> windowPlace(const QVariantMap& record);

/// The place moved, and if need be made smaller, so that it lies on the screen of which it covers most, or on
/// the first one. A place is no smaller than `least` unless the screen is. Without screens it stays.
QRect onScreen(const QRect& place, QSize least, std::span<const QRect> screens);

/// Puts a window where it was left, and remembers where it is left.
class WindowMemory : public QObject {
 public:
  /// Both must live longer.
  WindowMemory(QWindow& window, PreferenceStore& preferences);
  ~WindowMemory() override;

  /// Shows the window for the first time.
  void show();

 private:
  void restore();
  void note();
  void keep();

  QWindow& window_;
  PreferenceStore& preferences_;
  WindowPlace place_;
  WindowPlace kept_;
  QTimer rest_;
};

}  // namespace tavi
