#pragma once

#include <QFont>
#include <QString>

namespace tavi {

/// The fonts of the interface, which are built into the application. Sizes in device-independent pixels. A
/// font that cannot be loaded is a fatal stop.
struct InterfaceFont {
  InterfaceFont() = delete;

  static QFont book(int size);
  static QFont medium(int size);
  static QFont heavy(int size);

  /// The font of the pictures in `Icons`.
  static QFont icons(int size);
};

}  // namespace tavi
