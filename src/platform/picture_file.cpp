#include "platform/picture_file.h"

#include <QBuffer>
#include <QSaveFile>

namespace tavi {

QByteArray pngBytes(const QImage& image) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, "PNG");
  return bytes;
}

WriteResult writeWhole(const QString& path, const QByteArray& bytes) {
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) return WriteResult::notWritable;
  const bool isWhole = file.write(bytes) == bytes.size() && file.commit();
  return isWhole ? WriteResult::written : WriteResult::noRoom;
}

QDir userFolder(QStandardPaths::StandardLocation location) {
  const QDir own(QStandardPaths::writableLocation(location));
  return own.exists() ? own : QDir::home();
}

QString unusedFile(const QDir& folder, const QString& name, QLatin1StringView ending) {
  QString file = folder.filePath(name + ending);
  for (int number = 2; QFileInfo::exists(file); ++number)
    file = folder.filePath(QStringLiteral("%1 (%2)").arg(name).arg(number) + ending);
  return file;
}

QString withEnding(const QString& path, QLatin1StringView ending) {
  if (path.endsWith(ending, Qt::CaseInsensitive)) return path;
  const QFileInfo file(path);
  return unusedFile(file.dir(), file.fileName(), ending);
}

}  // namespace tavi
