#pragma once

#include <functional>
#include <string>
#include <string_view>

#include <QtCore/QSizeF>
#include <QtCore/QString>

#include "commands.h"

class QIODevice;
class QPainter;

namespace tavi::cli {

/// What can be drawn: its size in device-independent pixels, and how.
struct Picture {
  QSizeF size;
  std::function<void(QPainter&)> paint;
};

/// Files that a picture is to be drawn into, and how.
struct PictureFiles {
  QString png;
  QString svg;
  QString pdf;
  double scale = 1;  ///< Pixels to a unit.
  bool isDark = false;

  enum class Read { notMine, done, wrong };

  /// Takes --png, --svg, --pdf, --scale or --dark off the front of the arguments, with its value.
  Read read(Arguments& arguments);

  /// What an option needs that was read as wrong.
  static std::string needOf(std::string_view option);

  bool areNone() const { return png.isEmpty() && svg.isEmpty() && pdf.isEmpty(); }

  /// Draws what `make` makes in the colours of the appearance. Needs an application object. The result is the
  /// exit code.
  int draw(const std::function<Picture()>& make) const;

  /// Does the work in the colours of the appearance; the result is the work's.
  int inAppearance(const std::function<int()>& work) const;
};

/// A format of pictures by its name, "png", "svg" or "pdf".
struct PictureFormat {
  std::string_view name;
  /// False where the picture is too large for the format or the device takes it not.
  bool (*write)(QIODevice& device, const Picture& picture, double scale);
  bool isText;  ///< UTF-8, as against bytes of any kind.
};

/// None of another name.
const PictureFormat* pictureFormat(std::string_view name);

}  // namespace tavi::cli
