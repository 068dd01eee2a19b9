#include "typeset/parser.h"

#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "typeset/utf8.h"

namespace tavi::typeset {
namespace {

std::string outline(const List& list);

// A tree as text: scripts as base^(…)_(…), constructs by name, unreadable pieces between « and ».
struct Outline {
  std::string operator()(const Symbol& symbol) const { return encodeUtf8({&symbol.source, 1}); }
  std::string operator()(const Space&) const { return " "; }
  std::string operator()(const Text& text) const {
    const std::string characters = encodeUtf8(text.characters);
    return text.isUnreadable ? "«" + characters + "»" : "'" + characters + "'";
  }
  std::string operator()(const Group& group) const {
    return (group.color ? "color{" : "{") + outline(group.content) + "}";
  }
  std::string operator()(const Fraction& fraction) const {
    return "frac{" + outline(fraction.numerator) + "/" + outline(fraction.denominator) + "}";
  }
  std::string operator()(const Radical& radical) const {
    const std::string index = radical.index.empty() ? "" : "[" + outline(radical.index) + "]";
    return "root" + index + "{" + outline(radical.radicand) + "}";
  }
  std::string operator()(const Overline& bar) const { return "bar{" + outline(bar.content) + "}"; }
  std::string operator()(const Fence& fence) const {
    const auto delimiter = [](char32_t character) {
      return character == 0 ? std::string(".") : encodeUtf8({&character, 1});
    };
    return "fence" + delimiter(fence.opening) + outline(fence.content) + delimiter(fence.closing);
  }
  std::string operator()(const Scripts& scripts) const {
    std::string text = outline(scripts.nucleus);
    if (scripts.superscript) text += "^(" + outline(*scripts.superscript) + ")";
    if (scripts.subscript) text += "_(" + outline(*scripts.subscript) + ")";
    return text;
  }
};

std::string outline(const List& list) {
  std::string text;
  for (const Atom& atom : list) text += std::visit(Outline{}, atom.content);
  return text;
}

TEST(Parser, ReadsTheLinesOfWorkings) {
  struct Case {
    std::string_view latex;
    std::string_view tree;
  };
  const Case cases[] = {
      {"64^{2}", "64^(2)"},
      {"x_1^2 y^2_1", "x^(2)_(1)y^(2)_(1)"},
      {"\\frac{3}{2}^{\\;\\color{#ff3333}{-}2}", "frac{3/2}^( color{-}2)"},
      {"\\sqrt[\\;\\color{#f33}{3}]{8^{2}}", "root[ color{3}]{8^(2)}"},
      {"\\sqrt[\\sqrt[3]{2}]{5}", "root[root[3]{2}]{5}"},
      {"\\left( 2 \\right) \\left\\{ [1] \\right.", "fence(2)fence{[1]."},
      {"\\frac12\\sqrt2\\sqrt\\frac12", "frac{1/2}root{2}root{frac{1/2}}"},
      {"2^\\frac12", "2^(frac{1/2})"},
      {"\\pi\\le π≤\\cdot·", "π≤π≤⋅·"},
      {"\\sin x\\text{ if \\{a\\}, 5\\%}", "'sin'x' if {a}, 5%'"},
      {"\\text{a\\}b}c\\text{{\\{}}", "'a}b'c'{'"},
      {"\\mathrm{kg}\\{\\}\\%\\_\\#", "{kg}{}%_#"},
      {"", ""},
  };
  for (const auto& [latex, tree] : cases) {
    SCOPED_TRACE(latex);
    const Formula formula = parse(latex);
    EXPECT_EQ(outline(formula.list), tree);
    EXPECT_FALSE(formula.error.has_value());
  }
}

TEST(Parser, ColoursAreDigitsOrNames) {
  struct Case {
    std::string_view name;
    Rgb rgb;
  };
  const Case cases[] = {
      {"#5774f7", {0x57, 0x74, 0xf7}},
      {"#F3a", {0xff, 0x33, 0xaa}},
      {"gray", {0x80, 0x80, 0x80}},
      {"red", {0xff, 0, 0}},
  };
  for (const auto& [name, rgb] : cases) {
    SCOPED_TRACE(name);
    const Formula formula = parse("\\color{" + std::string(name) + "}{x}");
    ASSERT_EQ(formula.list.size(), 1U);
    EXPECT_EQ(std::get<Group>(formula.list[0].content).color, rgb);
  }
}

TEST(Parser, SetsFaultyLinesAsFarAsTheyRead) {
  struct Case {
    std::string_view latex;
    std::string_view tree;
    std::string_view error;
  };
  const Case cases[] = {
      {"{2+x", "«{»2+x", "{ without } at character 1"},
      {"2}+1", "2«}»+1", "} without { at character 2"},
      {"3\\foo{2}", "3«\\foo»{2}", "unknown command \\foo at character 2"},
      {"\\frac+", "«\\frac»+", "\\frac needs two arguments at character 1"},
      {"\\frac{1}", "«\\frac»1", "\\frac needs two arguments at character 1"},
      {"\\frac{1}{2", "frac{1/«{»2}", "{ without } at character 9"},
      {"\\sqrt[3{2}", "«\\sqrt[»3{2}", "[ without ] at character 1"},
      {"{\\sqrt[3}2", "{«\\sqrt[»3}2", "[ without ] at character 2"},
      {"\\sqrt", "«\\sqrt»", "\\sqrt needs an argument at character 1"},
      {"2^", "2«^»", "^ has nothing after it at character 2"},
      {"^2", "«^»2", "^ has nothing before it at character 1"},
      {"x^2^3", "x^(2)«^»3", "second ^ on the same base at character 4"},
      {"π_a_b", "π_(a)«_»b", "second _ on the same base at character 4"},
      {"\\left(2", "«\\left(»2", "\\left without \\right at character 1"},
      {"2^{\\infty}\\right) = 1", "2^(∞)«\\right»)=1", "\\right without \\left at character 11"},
      {"\\left x", "«\\left»x", "\\left needs a delimiter at character 1"},
      {"\\left(2\\right", "fence(2.«\\right»", "\\right needs a delimiter at character 8"},
      {"{\\left(2}\\right)", "{«\\left(»2}«\\right»)", "\\left without \\right at character 2"},
      {"\\color{pink}{x}", "«\\color{pink}»{x}", "unknown colour pink at character 1"},
      {"\\color{#12345g}{x}", "«\\color{#12345g}»{x}", "unknown colour #12345g at character 1"},
      {"\\color{red}", "«\\color{red}»", "\\color needs something to colour at character 1"},
      {"\\text{ab", "«\\text»«{»ab", "\\text needs an argument in braces at character 1"},
      {"\\text{ab\\}", "«\\text»«{»ab}", "\\text needs an argument in braces at character 1"},
      {"{\\sqrt[3]}", "{«\\sqrt[3]»}", "\\sqrt needs an argument at character 2"},
      {"\\", "«\\»", "\\ without a command at character 1"},
      {"a\x01", "a«\x01»", "unreadable character at character 2"},
      {"a\xff\xc0\x80", "a«\xEF\xBF\xBD»«\xEF\xBF\xBD»«\xEF\xBF\xBD»", "unreadable character at character 2"},
  };
  for (const auto& [latex, tree, error] : cases) {
    SCOPED_TRACE(latex);
    const Formula formula = parse(latex);
    EXPECT_EQ(outline(formula.list), tree);
    ASSERT_TRUE(formula.error.has_value());
    EXPECT_EQ(formula.error->text(), error);
  }
}

std::string repeat(std::string_view piece, int times) {
  std::string text;
  for (int count = 0; count < times; ++count) text += piece;
  return text;
}

TEST(Parser, LimitsHowDeepALineNests) {
  struct Case {
    std::string_view opening;
    std::string_view closing;
  };
  const Case cases[] = {{"{", "}"},
                        {"x^{", "}"},
                        {"\\sqrt", ""},
                        {"\\sqrt[", "]2"},
                        {"\\frac{1}{", "}"},
                        {"\\left(", "\\right)"},
                        {"\\color{red}{", "}"},
                        {"\\mathrm{", "}"}};
  for (const auto& [opening, closing] : cases) {
    SCOPED_TRACE(opening);
    EXPECT_FALSE(parse(repeat(opening, maximumNesting) + "2" + repeat(closing, maximumNesting)).error);
    for (const int depth : {maximumNesting + 1, 100000}) {
      const auto error = parse(repeat(opening, depth) + "2" + repeat(closing, depth)).error;
      ASSERT_TRUE(error.has_value());
      EXPECT_TRUE(error->text().starts_with("nested more than 200 levels deep at character"))
          << error->text();
    }
  }
}

}  // namespace
}  // namespace tavi::typeset
