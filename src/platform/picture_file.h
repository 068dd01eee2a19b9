#pragma once

#include <QByteArray>
#include <QDir>
#include <QImage>
#include <QLatin1StringView>
#include <QStandardPaths>
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

/// The user's folder for such files or, where there is none, the user's own.
QDir userFolder(QStandardPaths::StandardLocation location);

/// The path of a file of about that name that is not in the folder yet. The ending begins with its point.
QString unusedFile(const QDir& folder, const QString& name, QLatin1StringView ending);

/// The path with that ending. One that is given it here is of no file that is there, as the dialog in which
/// it was chosen asked about the path without.
QString withEnding(const QString& path, QLatin1StringView ending);

}  // namespace tavi
