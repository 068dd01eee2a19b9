#include "appearance/text_drawing.h"

#include <QGlyphRun>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QRawFont>

namespace tavi {

namespace {

void drawOutlines(QPainter& painter, const QTextLayout& layout, QPointF place) {
  QPainterPath outlines;
  for (const QGlyphRun& run : layout.glyphRuns()) {
    const QList<quint32> glyphs = run.glyphIndexes();
    const QList<QPointF> positions = run.positions();
    for (qsizetype i = 0; i < glyphs.size(); ++i)
      outlines.addPath(run.rawFont().pathForGlyph(glyphs[i]).translated(place + positions[i]));
  }
  painter.fillPath(outlines, painter.pen().color());
}

}  // namespace

TextBlock::TextBlock(const QString& text, const QFont& font, double width) : layout_(text, font) {
  if (text.isEmpty()) return;
  QTextOption option;
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  layout_.setTextOption(option);
  layout_.beginLayout();
  for (QTextLine line = layout_.createLine(); line.isValid(); line = layout_.createLine()) {
    line.setLineWidth(width);
    line.setPosition({0, height_});
    height_ += line.height();
  }
  layout_.endLayout();
}

void TextBlock::draw(QPainter& painter, QPointF place) const {
  if (height_ == 0) return;
  if (painter.paintEngine()->type() == QPaintEngine::SVG)
    drawOutlines(painter, layout_, place);
  else
    layout_.draw(&painter, place);
}

}  // namespace tavi
