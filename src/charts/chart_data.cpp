#include "charts/chart_data.h"

#include <algorithm>
#include <array>

namespace tavi {

namespace {

constexpr std::array<std::string_view, 4> quadrantTexts{"I", "II", "III", "IV"};

}  // namespace

std::string_view rawValue(Quadrant quadrant) {
  return quadrantTexts.at(static_cast<std::size_t>(quadrant));
}

std::optional<Quadrant> quadrantFromRawValue(std::string_view text) {
  const auto* const found = std::ranges::find(quadrantTexts, text);
  if (found == quadrantTexts.end()) return std::nullopt;
  return static_cast<Quadrant>(found - quadrantTexts.begin());
}

UnitCircleChartData::UnitCircleChartData(std::optional<double> degrees, std::optional<double> radians,
                                         std::optional<double> reducedAngle,
                                         std::optional<std::int64_t> turns,
                                         std::optional<Quadrant> quadrantOfAngle)
    : alpha(degrees), b(radians), angle(reducedAngle), fullCircles(turns), quadrant(quadrantOfAngle) {
  frameRatio = 2;
}

}  // namespace tavi
