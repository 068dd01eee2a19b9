#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

namespace tavi {

enum class WriteResult {
  written,
  noRoom,       ///< The disk is full, or failed while it was written to.
  notWritable,  ///< The folder cannot be written to, or is not there.
};

/// The image as a PNG file.
QByteArray pngBytes(const QImage& image);

/// Writes a file that is there whole or not at all; one of that name before it is kept until then.
WriteResult writeWhole(const QString& path, const QByteArray& bytes);

}  // namespace tavi
