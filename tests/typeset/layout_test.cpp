#include "typeset/layout.h"

#include <algorithm>
#include <string>

#include <gtest/gtest.h>

#include "math_font_fixture.h"
#include "typeset/typeset.h"

namespace tavi::typeset {
namespace {

Layout set(std::string_view latex, double size = 20) {
  return typeset(latex, testFont(), size);
}

TEST(Layout, ScalesWithTheSize) {
  constexpr std::string_view latex =
      "\\sqrt[3]{\\frac{x^{2}_{1}}{2}}=\\left(\\frac{\\frac{\\frac{1}{2}}{3}}{\\frac{4}{\\frac{5}{6}}}"
      "\\right)^{\\left.1\\right|}";
  const Layout small = set(latex, 10);
  const Layout large = set(latex, 70);
  EXPECT_NEAR(large.width, 7 * small.width, 1e-9);
  EXPECT_NEAR(large.height, 7 * small.height, 1e-9);
  EXPECT_NEAR(large.depth, 7 * small.depth, 1e-9);
  ASSERT_EQ(large.glyphs.size(), small.glyphs.size());
  for (std::size_t index = 0; index < small.glyphs.size(); ++index) {
    EXPECT_EQ(large.glyphs[index].id, small.glyphs[index].id);
    EXPECT_NEAR(large.glyphs[index].x, 7 * small.glyphs[index].x, 1e-9);
    EXPECT_NEAR(large.glyphs[index].y, 7 * small.glyphs[index].y, 1e-9);
    EXPECT_NEAR(large.glyphs[index].size, 7 * small.glyphs[index].size, 1e-9);
  }
}

TEST(Layout, ColoursReachEverythingInsideAndNothingBehind) {
  constexpr Rgb red{0xff, 0, 0};
  constexpr Rgb blue{0, 0, 0xff};
  const Layout layout = set("a\\color{red}{b\\color{blue}{\\frac{c}{d}}\\sqrt{e}}f");
  const auto colorOf = [&](char32_t letter) {
    return std::ranges::find(layout.glyphs, letter, &Glyph::codePoint)->color;
  };
  EXPECT_EQ(colorOf(U'𝑎'), std::nullopt);
  EXPECT_EQ(colorOf(U'𝑏'), red);
  EXPECT_EQ(colorOf(U'𝑐'), blue);
  EXPECT_EQ(colorOf(U'𝑑'), blue);
  EXPECT_EQ(colorOf(U'𝑒'), red);
  EXPECT_EQ(colorOf(U'√'), red);
  EXPECT_EQ(colorOf(U'𝑓'), std::nullopt);
  ASSERT_EQ(layout.rules.size(), 2U);
  EXPECT_EQ(layout.rules[0].color, blue);
  EXPECT_EQ(layout.rules[1].color, red);
}

// The bar's place and thickness are the font's overbar constants: 120, 40 and 40 thousandths of the em.
TEST(Layout, APeriodStandsUnderABarAsWideAsItself) {
  const Layout bare = set("27", 100);
  const Layout barred = set("0.\\overline{27}", 100);
  ASSERT_EQ(barred.rules.size(), 1U);
  const Rule& bar = barred.rules.front();
  EXPECT_NEAR(bar.x, barred.width - bare.width, 1e-9);
  EXPECT_NEAR(bar.width, bare.width, 1e-9);
  EXPECT_NEAR(bar.y, bare.height + 12, 1e-9);
  EXPECT_NEAR(bar.height, 4, 1e-9);
  EXPECT_NEAR(barred.height, bare.height + 20, 1e-9);
  EXPECT_EQ(barred.glyphs.back().size, 100) << "no smaller than the digits before it";
}

TEST(Layout, ShowsABoxForWhatTheFontLacks) {
  const Layout layout = set("1+中\\text{a文}");
  ASSERT_TRUE(layout.error.has_value());
  EXPECT_EQ(layout.error->text(), "the font has no 中 at character 3");
  ASSERT_EQ(layout.glyphs.size(), 5U);
  EXPECT_EQ(layout.glyphs[2].codePoint, U'中');
  EXPECT_EQ(layout.glyphs[2].color, errorColor);
  EXPECT_NE(layout.glyphs[2].id, 0U);
  EXPECT_EQ(layout.glyphs[3].color, std::nullopt);
  EXPECT_EQ(layout.glyphs[4].color, errorColor);
}

TEST(Layout, UnreadablePiecesAreTypedInTheColourOfErrors) {
  const Layout layout = set("2\\foo+1");
  ASSERT_EQ(layout.glyphs.size(), 7U);
  std::u32string red;
  for (const Glyph& glyph : layout.glyphs) {
    if (glyph.color == errorColor) red += glyph.codePoint;
  }
  EXPECT_EQ(red, U"\\foo");
  EXPECT_EQ(layout.error->text(), "unknown command \\foo at character 2");
}

TEST(Layout, NamesTheMathematicalLetterDrawn) {
  const Layout layout = set("h-\\pi:\\Gamma*\\mathrm{h}");
  std::u32string drawn;
  for (const Glyph& glyph : layout.glyphs) drawn += glyph.codePoint;
  EXPECT_EQ(drawn, U"ℎ−𝜋∶Γ∗h");
}

TEST(Layout, AnEmptyLineIsNothing) {
  const Layout layout = set("  ");
  EXPECT_EQ(layout.width, 0);
  EXPECT_EQ(layout.height, 0);
  EXPECT_TRUE(layout.glyphs.empty());
}

}  // namespace
}  // namespace tavi::typeset
