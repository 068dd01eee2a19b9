#include "platform/resource_bundle.h"

#include <QFile>
#include <QFileInfo>
#include <utility>

namespace tavi {

ResourceBundle& ResourceBundle::own() {
  static ResourceBundle bundle(QStringLiteral(":"));
  return bundle;
}

const ResourceBundle& ResourceBundle::main() {
  return own();
}

void ResourceBundle::overlayMain(QString folder) {
  own().overlay_ = std::move(folder);
}

ResourceBundle::ResourceBundle(QString root) : root_(std::move(root)) {}

QString ResourceBundle::file(const QString& name, const QString& extension) const {
  const QString tail = '/' + name + '.' + extension;
  return !overlay_.isEmpty() && QFileInfo(overlay_ + tail).isFile() ? overlay_ + tail : root_ + tail;
}

std::optional<QString> ResourceBundle::path(const QString& name, const QString& extension) const {
  const QString path = file(name, extension);
  return QFileInfo(path).isFile() ? std::optional(path) : std::nullopt;
}

std::optional<QByteArray> ResourceBundle::data(const QString& name, const QString& extension) const {
  QFile content(file(name, extension));
  return content.open(QFile::ReadOnly) ? std::optional(content.readAll()) : std::nullopt;
}

std::optional<std::string> readResource(std::string_view name, std::string_view extension) {
  const auto text = [](std::string_view utf8) { return QString::fromUtf8(utf8.data(), std::ssize(utf8)); };
  const std::optional<QByteArray> content = ResourceBundle::main().data(text(name), text(extension));
  return content ? std::optional(content->toStdString()) : std::nullopt;
}

}  // namespace tavi
