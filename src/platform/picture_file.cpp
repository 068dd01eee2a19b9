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

}  // namespace tavi
