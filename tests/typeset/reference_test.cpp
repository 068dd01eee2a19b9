// What TeX measured is in reference/reference.jsonl; reference/regenerate tells how it came about.
#include <algorithm>
#include <cmath>
#include <fstream>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "math_font_fixture.h"
#include "typeset/typeset.h"

namespace tavi::typeset {
namespace {

using nlohmann::json;
using Place = std::pair<double, double>;

constexpr double size = 20;
// TeX rounds what it adds up, and it kerns running text; nothing else may differ.
constexpr double tolerance = 0.02;
constexpr double textTolerance = 0.05;

// The farthest that a place is from its nearest place in `others`.
double farthest(const std::vector<Place>& places, const std::vector<Place>& others) {
  double worst = 0;
  for (const auto& [x, y] : places) {
    double nearest = 1e9;
    for (const auto& [otherX, otherY] : others) {
      nearest = std::min(nearest, std::max(std::abs(x - otherX), std::abs(y - otherY)));
    }
    worst = std::max(worst, nearest);
  }
  return worst;
}

template <typename Items>
std::vector<Place> placesOf(const Items& items) {
  std::vector<Place> places;
  for (const auto& item : items) places.emplace_back(item.x, item.y);
  return places;
}

std::vector<Place> placesOf(const json& items) {
  std::vector<Place> places;
  for (const json& item : items) places.emplace_back(item[0], item[1]);
  return places;
}

TEST(Reference, EveryLineIsSetAsTexSetsIt) {
  std::ifstream file(TAVI_REFERENCE);
  int lines = 0;
  for (std::string text; std::getline(file, text); ++lines) {
    const json expected = json::parse(text);
    const auto latex = expected["latex"].get<std::string>();
    SCOPED_TRACE(latex);
    const double near = latex.find("\\text") == std::string::npos ? tolerance : textTolerance;

    const Layout layout = typeset(latex, testFont(), size);

    EXPECT_FALSE(layout.error.has_value());
    EXPECT_NEAR(layout.width, expected["width"], near);
    EXPECT_NEAR(layout.height, expected["height"], near);
    EXPECT_NEAR(layout.depth, expected["depth"], near);
    const auto glyphs = placesOf(expected["glyphs"]);
    ASSERT_EQ(layout.glyphs.size(), glyphs.size());
    EXPECT_LT(farthest(placesOf(layout.glyphs), glyphs), near);
    EXPECT_LT(farthest(glyphs, placesOf(layout.glyphs)), near);
    ASSERT_EQ(layout.rules.size(), expected["rules"].size());
    for (const Rule& rule : layout.rules) {
      const bool isThere = std::ranges::any_of(expected["rules"], [&](const json& other) {
        return std::abs(rule.x - other[0].get<double>()) < near &&
               std::abs(rule.y - other[1].get<double>()) < near &&
               std::abs(rule.width - other[2].get<double>()) < near &&
               std::abs(rule.height - other[3].get<double>()) < near;
      });
      EXPECT_TRUE(isThere) << "rule at " << rule.x << ", " << rule.y;
    }
  }
  EXPECT_GE(lines, 190);
}

}  // namespace
}  // namespace tavi::typeset
