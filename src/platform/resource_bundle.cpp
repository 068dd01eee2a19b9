#include "platform/resource_bundle.h"

#include <QFile>
#include <QFileInfo>

namespace tavi {

const ResourceBundle& ResourceBundle::main() {
  static const ResourceBundle bundle(QStringLiteral(":"));
  return bundle;
}

ResourceBundle::ResourceBundle(QString root) : root_(std::move(root)) {}

std::optional<QString> ResourceBundle::path(const QString& name, const QString& extension) const {
  const QString path = root_ + '/' + name + '.' + extension;
  return QFileInfo(path).isFile() ? std::optional(path) : std::nullopt;
}

std::optional<QByteArray> ResourceBundle::data(const QString& name, const QString& extension) const {
  QFile file(root_ + '/' + name + '.' + extension);
  return file.open(QFile::ReadOnly) ? std::optional(file.readAll()) : std::nullopt;
}

std::optional<std::string> readResource(std::string_view name, std::string_view extension) {
  const auto text = [](std::string_view utf8) { return QString::fromUtf8(utf8.data(), std::ssize(utf8)); };
  const std::optional<QByteArray> content = ResourceBundle::main().data(text(name), text(extension));
  return content ? std::optional(content->toStdString()) : std::nullopt;
}

}  // namespace tavi
