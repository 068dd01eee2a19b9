#include "typeset/line_breaks.h"

#include <cmath>
#include <string>

#include <gtest/gtest.h>

#include "math_font_fixture.h"
#include "typeset/typeset.h"

namespace tavi::typeset {
namespace {

Layout product(int factors, const std::string& before, const std::string& behind) {
  std::string latex = before;
  for (int i = 0; i < factors; ++i) latex += "\\left( 12^{-(1)} \\right) ";
  return typeset(latex + behind, testFont(), 20);
}

TEST(LineBreaksTest, PartsAreTheWholeLineAndNoneIsTooWide) {
  struct Case {
    const char* name;
    Layout layout;
  };
  const Case cases[] = {{"short", product(1, "", "")},
                        {"product", product(50, "", "")},
                        {"under a bar", product(50, "\\frac{", "}{2}")},
                        {"empty", product(0, "", "")}};
  for (const auto& [name, layout] : cases) {
    const std::vector<LinePart> parts = parted(layout, 300);
    ASSERT_FALSE(parts.empty()) << name;
    double end = 0;
    for (const LinePart& part : parts) {
      EXPECT_EQ(part.left, end) << name;
      EXPECT_LE(part.right - part.left, 300) << name;
      end = part.right;
    }
    EXPECT_EQ(end, layout.width) << name;
  }
}

TEST(LineBreaksTest, AFactorStaysWhole) {
  const Layout layout = product(50, "", "");
  const std::vector<LinePart> parts = parted(layout, 300);
  EXPECT_GT(parts.size(), 5U);
  const double factor = layout.width / 50;
  for (const LinePart& part : parts) {
    const double factors = part.left / factor;
    EXPECT_NEAR(factors, std::round(factors), 0.1) << "parted within a factor";
  }
}

}  // namespace
}  // namespace tavi::typeset
