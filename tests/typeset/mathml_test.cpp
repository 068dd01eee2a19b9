// A line of LaTeX as MathML.
#include "typeset/mathml.h"

#include <string>

#include <gtest/gtest.h>

#include "typeset/parser.h"

namespace tavi::typeset {
namespace {

std::string bodyOf(const char* latex) {
  const std::string whole = mathml(parse(latex).list);
  const std::size_t start = whole.find('>') + 1;
  return whole.substr(start, whole.rfind("</math>") - start);
}

TEST(MathMl, EachConstructHasItsElement) {
  const std::pair<const char*, const char*> cases[] = {
      {"12.5", "<mn>12.5</mn>"},
      {"x-1", "<mrow><mi>x</mi><mo>−</mo><mn>1</mn></mrow>"},
      {"\\frac{3}{2x}", "<mfrac><mn>3</mn><mrow><mn>2</mn><mi>x</mi></mrow></mfrac>"},
      {"\\sqrt{2}", "<msqrt><mn>2</mn></msqrt>"},
      {"\\sqrt[3]{8}", "<mroot><mn>8</mn><mn>3</mn></mroot>"},
      {"64^{2}", "<msup><mn>64</mn><mn>2</mn></msup>"},
      {"1.44^2", "<msup><mn>1.44</mn><mn>2</mn></msup>"},
      {"x_1^2", "<msubsup><mi>x</mi><mn>1</mn><mn>2</mn></msubsup>"},
      {"\\left(2\\right)",
       "<mrow><mo fence=\"true\" stretchy=\"true\">(</mo><mn>2</mn><mo fence=\"true\" "
       "stretchy=\"true\">)</mo></mrow>"},
      {"\\color{#ff3333}{-}2", "<mrow><mstyle mathcolor=\"#ff3333\"><mo>−</mo></mstyle><mn>2</mn></mrow>"},
      {"\\quad\\pi", "<mrow><mspace width=\"1.000em\"/><mi>π</mi></mrow>"},
      {"\\text{a<b & c}", "<mtext>a&lt;b &amp; c</mtext>"},
      {"\\sin x", "<mrow><mi>sin</mi><mi>x</mi></mrow>"},
      {"2<3", "<mrow><mn>2</mn><mo>&lt;</mo><mn>3</mn></mrow>"},
      {"=2", "<mrow><mrow></mrow><mo>=</mo><mn>2</mn></mrow>"},
      {"\\frac{3}{2}^2",
       "<msup><mrow><mrow></mrow><mfrac><mn>3</mn><mn>2</mn></mfrac></mrow><mn>2</mn></msup>"},
      {"\\sqrt{2}^2", "<msup><mrow><mrow></mrow><msqrt><mn>2</mn></msqrt></mrow><mn>2</mn></msup>"},
      {"{}^{2}", "<msup><mrow></mrow><mn>2</mn></msup>"},
      {"", "<mrow></mrow>"},
  };
  for (const auto& [latex, expected] : cases) EXPECT_EQ(bodyOf(latex), expected) << latex;
}

}  // namespace
}  // namespace tavi::typeset
