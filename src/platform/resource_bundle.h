#pragma once

#include <QByteArray>
#include <QString>
#include <optional>
#include <string>
#include <string_view>

namespace tavi {

/// The files that are built into the application, found by name and extension.
class ResourceBundle {
 public:
  /// The application's own resources.
  static const ResourceBundle& main();

  /// From now on files in that folder stand for those of the application's own of the same names. For
  /// programs that try the application under other settings; to be called before anything is read.
  static void overlayMain(QString folder);

  /// A bundle over a folder of the resource system or, for tests, of the disk.
  explicit ResourceBundle(QString root);

  /// Path of the file, for those who read it themselves; absent if there is none.
  std::optional<QString> path(const QString& name, const QString& extension) const;

  /// The whole content of the file; absent if there is none or it cannot be read.
  std::optional<QByteArray> data(const QString& name, const QString& extension) const;

  /// The drawing of that name, as SVG; absent if there is none.
  std::optional<QByteArray> picture(const QString& name) const {
    return data(QStringLiteral("pictures/") + name, QStringLiteral("svg"));
  }

 private:
  static ResourceBundle& own();
  QString file(const QString& name, const QString& extension) const;

  QString root_;
  QString overlay_ = {};  ///< Whose files come first; empty for none.
};

/// A file of the application's own resources, for the engine, which knows of no Qt; absent as above.
std::optional<std::string> readResource(std::string_view name, std::string_view extension);

}  // namespace tavi
