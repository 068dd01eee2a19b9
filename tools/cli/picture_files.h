#pragma once

#include <functional>

#include <QtCore/QSizeF>
#include <QtCore/QString>

#include "commands.h"

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

  bool areNone() const { return png.isEmpty() && svg.isEmpty() && pdf.isEmpty(); }

  /// Draws what `make` makes in the colours of the appearance. Needs an application object. The result is the
  /// exit code.
  int draw(const std::function<Picture()>& make) const;
};

}  // namespace tavi::cli
