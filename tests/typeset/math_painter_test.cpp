// The golden images are drawn at 40 pixels to the em. With TAVI_UPDATE_GOLDEN set they are written anew; look
// at them before they are committed.
#include "typeset/math_painter.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <string>

#include <gtest/gtest.h>

#include <QtCore/QDir>
#include <QtGui/QImage>
#include <QtGui/QPainter>

#include "appearance/contrast.h"
#include "math_font_fixture.h"
#include "typeset/typeset.h"

namespace tavi::typeset {
namespace {

constexpr int margin = 8;

QImage draw(std::string_view latex, double size, const Ink& ink = {}, QPointF shift = {}) {
  const Layout layout = typeset(latex, testFont(), size);
  QImage image(static_cast<int>(std::ceil(layout.width)) + 2 * margin,
               static_cast<int>(std::ceil(layout.height + layout.depth)) + 2 * margin, QImage::Format_RGB32);
  image.fill(ink.background);
  QPainter painter(&image);
  MathPicture(layout).paint(painter, QPointF(margin, margin + std::round(layout.height)) + shift, ink);
  return image;
}

// The share of pixels that differ by more than another rasteriser's idea of an edge would explain.
double differingShare(const QImage& image, const QImage& other) {
  if (image.size() != other.size()) return 1;
  int differing = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QColor color = image.pixelColor(x, y);
      const QColor otherColor = other.pixelColor(x, y);
      const int difference =
          std::max({std::abs(color.red() - otherColor.red()), std::abs(color.green() - otherColor.green()),
                    std::abs(color.blue() - otherColor.blue())});
      if (difference > 80) ++differing;
    }
  }
  return static_cast<double>(differing) / (image.width() * image.height());
}

struct Golden {
  const char* name;
  const char* latex;
};

void PrintTo(const Golden& golden, std::ostream* out) {
  *out << golden.name;
}

constexpr double goldenSize = 40;
constexpr double goldenTolerance = 0.001;

class GoldenImage : public testing::TestWithParam<Golden> {};

TEST_P(GoldenImage, IsDrawnAgain) {
  const QString file = QDir(QStringLiteral(TAVI_GOLDEN)).filePath(QString(GetParam().name) + ".png");
  const QImage image = draw(GetParam().latex, goldenSize);
  if (std::getenv("TAVI_UPDATE_GOLDEN")) {
    ASSERT_TRUE(image.save(file));
  }
  const QImage golden(file);
  ASSERT_FALSE(golden.isNull());
  EXPECT_LT(differingShare(image, golden), goldenTolerance);
}

INSTANTIATE_TEST_SUITE_P(
    Typeset, GoldenImage,
    testing::Values(
        Golden{"power_of_fraction", "=\\frac{3}{2}^{\\;\\color{#ff3333}{-}2}"},
        Golden{"result", "\\frac{3}{2}^{-2} = \\frac{4}{9} \\approx 0.44444"},
        Golden{
            "fences",
            "=\\left( \\frac{2}{3} \\right) \\left[ 2 \\right] \\left\\{ \\frac{1}{\\frac{2}{3}} \\right\\}"},
        Golden{"root", "\\sqrt{2}+\\sqrt{x^{2}}-\\sqrt{\\frac{1}{2}}"},
        Golden{"root_with_index",
               "=\\sqrt[\\;\\color{#bf5afa}{3}]{8^{\\;\\color{#5774f7}{2}}}+\\sqrt[n+1]{\\frac{a}{b}}"},
        Golden{"root_of_root", "\\sqrt{1+\\sqrt{1+\\sqrt{1+\\sqrt{\\frac{1}{2}}}}}"},
        Golden{"fraction_of_roots", "=\\frac{\\sqrt[3]{1^{2}}}{\\sqrt{3^{\\;\\color{#5774f7}{2}}}}"},
        Golden{"fractional_exponent", "8^{\\frac{2}{3}}=x^{\\sqrt[3]{\\frac{1}{2}}}"},
        Golden{"both_scripts", "x^{2}_{1}+\\left(\\frac{y}{2}\\right)^{n}_{k}"},
        Golden{
            "assembled_fence",
            "\\left(\\frac{\\frac{\\frac{1}{2}}{\\frac{3}{4}}}{\\frac{\\frac{5}{6}}{\\frac{7}{8}}}\\right)"},
        Golden{"assembled_root",
               "\\sqrt[n]{\\frac{\\frac{\\frac{1}{2}}{\\frac{3}{4}}}{\\frac{\\frac{5}{6}}{\\frac{7}{8}}}}"},
        Golden{"text_and_functions", "\\sin\\alpha\\le\\left|x\\right|\\text{ for }x\\ne\\infty"},
        Golden{"error", "2+\\foo^{3}中"}),
    [](const auto& test) { return std::string(test.param.name); });

// As a screen of that many device pixels to a pixel shows a line at its usual size, wherever it stands.
QImage onScreen(std::string_view latex, double ratio, QPointF shift = {}) {
  const Layout layout = typeset(latex, testFont(), 20);
  const QSizeF size(layout.width + 2 * margin, layout.height + layout.depth + 2 * margin);
  QImage image((size * ratio).toSize(), QImage::Format_RGB32);
  image.setDevicePixelRatio(ratio);
  image.fill(Qt::white);
  QPainter painter(&image);
  MathPicture(layout).paint(painter, QPointF(margin, margin + layout.height) + shift, {});
  return image;
}

class CrispLine : public testing::TestWithParam<double> {};

// In a column through the bar of a fraction or of a root there is ink or none. Those of "=" and "-" may be
// thicker by a part of a pixel at one side.
TEST_P(CrispLine, BarsStandOnWholePixels) {
  const double ratio = GetParam();
  for (const char* bars : {"=", "\\frac{\\;\\;\\;}{\\;\\;\\;}", "\\sqrt{\\;\\;\\;\\;\\;}", "-"}) {
    for (const double shift : {0.0, 0.3, 0.5, 0.8}) {
      const QImage image = onScreen(bars, ratio, {0, shift});
      const int column = image.width() * 3 / 5;
      int inked = 0;
      int gray = 0;
      for (int y = 0; y < image.height(); ++y) {
        const int shade = qGray(image.pixel(column, y));
        if (shade < 100)
          ++inked;
        else if (shade < 225)
          ++gray;
      }
      SCOPED_TRACE(testing::Message() << bars << " at " << ratio << ", " << shift);
      const bool isGlyph = *bars != '\\';
      const int count = *bars == '=' ? 2 : 1;
      EXPECT_GE(inked, count);
      EXPECT_LE(inked, 2 * count);
      EXPECT_LE(gray, isGlyph && ratio > 1 ? count : 0);
    }
  }
}

// Another release of FreeType may hint another row, so that a tenth of what is inked may be so.
TEST_P(CrispLine, IsDrawnAgain) {
  const QImage image =
      onScreen("=\\sqrt[3]{8^{\\;\\color{#5774f7}{2}}}+\\frac{3}{2}^{-2}\\approx 0.44444", GetParam());
  const QString file =
      QDir(QStringLiteral(TAVI_GOLDEN)).filePath(QStringLiteral("line_at_%1.png").arg(100 * GetParam()));
  if (std::getenv("TAVI_UPDATE_GOLDEN")) {
    ASSERT_TRUE(image.save(file));
  }
  const QImage golden(file);
  ASSERT_FALSE(golden.isNull());
  EXPECT_LT(differingShare(image, golden), 0.01);
}

INSTANTIATE_TEST_SUITE_P(Typeset, CrispLine, testing::Values(1, 1.25, 2));

// A figure covers a pixel as much as that one of its pieces does which covers it most.
TEST(MathPicture, TheOutlineOfAFigureIsThatOfItsPieces) {
  const Ink ink;
  for (const char* opening : {"\\sqrt{", "\\left(", "\\left\\{", "\\left|", "\\left["}) {
    for (int rows = 1; rows < 12; ++rows) {
      std::string latex = "x";
      for (int row = 0; row < rows; ++row) latex = "\\frac{" + latex + "}{\\frac{1}{2}}";
      latex = opening + latex + (std::string_view(opening) == "\\sqrt{" ? "}" : "\\right.");
      SCOPED_TRACE(latex);
      const Layout layout = typeset(latex, testFont(), 23.7);
      const auto blank = [&] {
        QImage image(static_cast<int>(layout.height + layout.depth) + 10, static_cast<int>(layout.width) + 10,
                     QImage::Format_RGB32);
        image.fill(Qt::white);
        return image;
      };
      const auto paint = [&](QImage& image, const Layout& shown) {
        QPainter painter(&image);
        // Turned, so that no piece is put on whole pixels by itself.
        painter.translate(image.width(), 0);
        painter.rotate(90);
        MathPicture(shown).paint(painter, {5, 5 + std::round(layout.height)}, ink);
      };
      Layout figure = layout;
      std::erase_if(figure.glyphs, [](const Glyph& glyph) { return glyph.figure == noFigure; });
      std::erase_if(figure.rules, [](const Rule& rule) { return rule.figure == noFigure; });
      QImage drawn = blank();
      paint(drawn, figure);
      QImage darkest = blank();
      const auto darken = [&](const Layout& piece) {
        QImage image = blank();
        paint(image, piece);
        QPainter painter(&darkest);
        painter.setCompositionMode(QPainter::CompositionMode_Darken);
        painter.drawImage(0, 0, image);
      };
      for (const Glyph& glyph : figure.glyphs) darken(Layout{.glyphs = {glyph}, .rules = {}, .error = {}});
      for (const Rule& rule : figure.rules) darken(Layout{.glyphs = {}, .rules = {rule}, .error = {}});
      EXPECT_LT(differingShare(drawn, darkest), 0.0005);
    }
  }
}

TEST(MathPicture, RadicalSignsAndBarsMeetWithoutAGap) {
  // Wherever the seam falls between two pixels, the bar is nearly as dark at it as beyond it.
  for (int step = 0; step < 10; ++step) {
    const QPointF shift(step / 10.0, step / 7.0);
    SCOPED_TRACE(step);
    const QImage image = draw("\\sqrt{22}", goldenSize, {}, shift);
    const Layout layout = typeset("\\sqrt{22}", testFont(), goldenSize);
    const Rule& bar = layout.rules.front();
    const auto darkness = [&](int x) {
      int sum = 0;
      const int top =
          static_cast<int>(margin + std::round(layout.height) + shift.y() - bar.y - bar.height) - 1;
      for (int y = top; y < top + 4; ++y) sum += 255 - qGray(image.pixel(x, y));
      return sum;
    };
    const int seam = static_cast<int>(margin + shift.x() + bar.x);
    for (int x = seam; x <= seam + 1; ++x) EXPECT_GE(darkness(x), darkness(seam + 10) * 9 / 10);
  }
}

TEST(MathPicture, LeavesOutOnlyWhatLiesOutside) {
  std::string latex = "=";
  for (int count = 0; count < 60; ++count) latex += "\\left(\\frac{2}{3}\\right)^{2}\\sqrt{2}";
  const Layout layout = typeset(latex, testFont(), 20);
  const MathPicture picture(layout);
  constexpr int left = 1500;
  constexpr int width = 400;
  QImage whole(width, 80, QImage::Format_RGB32);
  whole.fill(Qt::white);
  QImage part = whole;
  QPainter wholePainter(&whole);
  picture.paint(wholePainter, {-left, 50}, {});
  QPainter partPainter(&part);
  picture.paint(partPainter, {-left, 50}, {}, left, left + width);
  EXPECT_EQ(part, whole);
}

TEST(LegibleColor, ReachesTheContrastInBothAppearances) {
  for (const char* name :
       {"#ff3333", "#5774f7", "#bf5afa", "#009900", "#d32f2f", "#ffffff", "#000000", "#00ff00"}) {
    for (const QColor background : {QColor(Qt::white), QColor(0xec, 0xef, 0xf1), QColor(0x12, 0x12, 0x12)}) {
      SCOPED_TRACE(name);
      const QColor fitted = legibleColor(QColor(name), background);
      EXPECT_GE(contrastRatio(fitted, background), 4.5);
      if (QColor(name).hslHue() >= 0) {
        EXPECT_NEAR(fitted.hslHue(), QColor(name).hslHue(), 3);
      }
      if (contrastRatio(QColor(name), background) >= 4.5) {
        EXPECT_EQ(fitted, QColor(name));
      }
    }
  }
}

}  // namespace
}  // namespace tavi::typeset
