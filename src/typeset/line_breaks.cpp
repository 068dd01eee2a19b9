#include "typeset/line_breaks.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace tavi::typeset {
namespace {

// Without those that the bar of a fraction or of a root reaches over. Sorted.
std::vector<double> outsideBars(std::vector<double> places, std::vector<Rule> bars) {
  std::ranges::sort(places);
  std::ranges::sort(bars, {}, &Rule::x);
  double reach = 0;
  auto bar = bars.begin();
  std::erase_if(places, [&](double place) {
    for (; bar != bars.end() && bar->x <= place; ++bar) reach = std::max(reach, bar->x + bar->width);
    return place < reach;
  });
  return places;
}

std::vector<double> breaks(const Layout& layout) {
  constexpr std::u32string_view breaksBefore = U"(=≈+⋅·×";
  double lineSize = 0;  // what is smaller is part of an exponent or an index
  for (const Glyph& glyph : layout.glyphs) lineSize = std::max(lineSize, glyph.size);
  std::vector<double> places;
  for (const Glyph& glyph : layout.glyphs) {
    if (glyph.size == lineSize && breaksBefore.find(glyph.codePoint) != std::u32string_view::npos)
      places.push_back(glyph.x);
  }
  return outsideBars(std::move(places), layout.rules);
}

}  // namespace

std::vector<LinePart> parted(const Layout& layout, double widest) {
  std::vector<LinePart> parts;
  double left = 0;
  if (layout.width > widest) {
    const std::vector<double> places = breaks(layout);
    while (layout.width - left > widest) {
      const auto behind = std::ranges::upper_bound(places, left + widest);
      const bool isFound = behind != places.begin() && *std::prev(behind) > left;
      const double right = isFound ? *std::prev(behind) : left + widest;
      parts.push_back({left, right});
      left = right;
    }
  }
  parts.push_back({left, layout.width});
  return parts;
}

}  // namespace tavi::typeset
