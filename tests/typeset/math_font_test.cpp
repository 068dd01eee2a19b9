#include <vector>

#include <gtest/gtest.h>

#include "math_font_fixture.h"

namespace tavi::typeset {
namespace {

TEST(MathFont, RefusesBytesThatAreNoMathematicalFont) {
  EXPECT_FALSE(MathFont::open({}));
  const std::vector<std::byte> zeros(1000);
  EXPECT_FALSE(MathFont::open(zeros));
  EXPECT_FALSE(MathFont::open(bundledMathFont().first(400)));
}

TEST(MathFont, TellsWhatItLacks) {
  EXPECT_EQ(testFont().glyph(U'中', ScriptShape::plain).id, 0U);
  EXPECT_TRUE(testFont().verticalShapes(U'中').variants.empty());
}

}  // namespace
}  // namespace tavi::typeset
