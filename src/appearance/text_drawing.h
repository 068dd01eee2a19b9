#pragma once

#include <QFont>
#include <QPointF>
#include <QString>
#include <QTextLayout>

class QPainter;

namespace tavi {

/// Plain text broken into lines of a width, as it stands in pictures. Where a picture would only name the
/// font (SVG), the text is drawn as outlines, so that it looks the same wherever it is opened. Lengths are
/// device-independent pixels.
class TextBlock {
 public:
  TextBlock(const QString& text, const QFont& font, double width);

  double height() const { return height_; }  ///< 0 for an empty text.

  /// Draws with the upper left corner there, in the colour of the painter's pen.
  void draw(QPainter& painter, QPointF place) const;

 private:
  QTextLayout layout_;
  double height_ = 0;
};

}  // namespace tavi
