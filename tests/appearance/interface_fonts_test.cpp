#include "appearance/interface_fonts.h"

#include <QPainterPath>
#include <QRawFont>
#include <QString>

#include <gtest/gtest.h>

namespace tavi {
namespace {

TEST(InterfaceFontTest, IconsStandInTheMiddleOfTheirSquares) {
  const QRawFont font = QRawFont::fromFont(InterfaceFont::icons(24));
  const QString evenIcons = QStringLiteral("\uf156\uf35c\uf415");  // a cross, three lines, a plus
  for (const quint32 icon : font.glyphIndexesForString(evenIcons)) {
    const QPointF centre = font.pathForGlyph(icon).boundingRect().center();
    EXPECT_NEAR(centre.x(), font.advancesForGlyphIndexes({icon}).first().x() / 2, 0.1) << icon;
  }
}

}  // namespace
}  // namespace tavi
