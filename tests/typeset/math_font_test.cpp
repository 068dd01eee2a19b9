#include <array>
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

TEST(MathFont, GivesConstantsInEms) {
  const MathConstants& constants = testFont().constants();
  EXPECT_DOUBLE_EQ(constants.axisHeight, 0.25);
  EXPECT_DOUBLE_EQ(constants.scriptPercentScaleDown, 0.7);
  EXPECT_DOUBLE_EQ(constants.radicalDegreeBottomRaisePercent, 0.6);
  EXPECT_DOUBLE_EQ(constants.radicalKernAfterDegree, -0.556);
  EXPECT_DOUBLE_EQ(constants.minConnectorOverlap, 0.02);
}

TEST(MathFont, DigitsGrowSturdierInScripts) {
  EXPECT_DOUBLE_EQ(testFont().glyph(U'2', ScriptShape::plain).width, 0.5);
  EXPECT_DOUBLE_EQ(testFont().glyph(U'2', ScriptShape::script).width, 0.569);
  EXPECT_DOUBLE_EQ(testFont().glyph(U'2', ScriptShape::scriptscript).width, 0.681);
  const auto plus = testFont().glyph(U'+', ScriptShape::plain).id;
  EXPECT_EQ(testFont().glyph(U'+', ScriptShape::script).id, plus);
}

TEST(MathFont, ExtentsTakeInTheControlPointsOfCurves) {
  EXPECT_DOUBLE_EQ(testFont().glyph(U'<', ScriptShape::plain).depth, 0.056);
}

TEST(MathFont, TellsWhatItLacks) {
  EXPECT_EQ(testFont().glyph(U'中', ScriptShape::plain).id, 0U);
  EXPECT_TRUE(testFont().verticalShapes(U'中').variants.empty());
}

TEST(MathFont, ParenthesesGrowInStepsAndThenInPieces) {
  const VerticalShapes& shapes = testFont().verticalShapes(U'(');
  std::vector<double> heights;
  for (const GlyphMetrics& variant : shapes.variants) heights.push_back(variant.height + variant.depth);
  const std::array expected{0.996, 1.094, 1.194, 1.444, 1.792, 2.092, 2.392, 2.990};
  ASSERT_EQ(heights.size(), expected.size());
  for (std::size_t index = 0; index < expected.size(); ++index)
    EXPECT_NEAR(heights[index], expected[index], 0.002);
  ASSERT_EQ(shapes.assembly.size(), 3U);
  EXPECT_TRUE(shapes.assembly[1].isExtender);
}

}  // namespace
}  // namespace tavi::typeset
