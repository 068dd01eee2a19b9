#include "appearance/contrast.h"

#include <algorithm>
#include <cmath>

namespace tavi {

namespace {

constexpr double leastContrast = 4.5;

double linear(float component) {
  return component <= 0.04045F ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
}

double relativeLuminance(const QColor& color) {
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

QColor mixed(const QColor& one, const QColor& other, float share) {
  const auto part = [share](float from, float to) {
    return std::clamp(from + share * (to - from), 0.0F, 1.0F);
  };
  return QColor::fromRgbF(part(one.redF(), other.redF()), part(one.greenF(), other.greenF()),
                          part(one.blueF(), other.blueF()));
}

}  // namespace

double contrastRatio(const QColor& one, const QColor& other) {
  const auto [darker, lighter] = std::minmax({relativeLuminance(one), relativeLuminance(other)});
  return (lighter + 0.05) / (darker + 0.05);
}

QColor legible(const QColor& text, const QColor& ground) {
  if (contrastRatio(text, ground) >= leastContrast) return text;
  const QColor end = contrastRatio(Qt::black, ground) >= leastContrast ? Qt::black : Qt::white;
  constexpr int steps = 32;
  for (int step = 1; step < steps; ++step) {
    const QColor mixture = mixed(text, end, static_cast<float>(step) / steps);
    if (contrastRatio(mixture, ground) >= leastContrast) return mixture;
  }
  return end;
}

}  // namespace tavi
