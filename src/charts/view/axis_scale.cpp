#include "charts/view/axis_scale.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "charts/tick_labels.h"
#include "number/number_text.h"
#include "number/text.h"

namespace tavi {

namespace {

// Beyond these no step can be told from its neighbours.
constexpr double largestValue = 1e300;
constexpr double leastSpan = 1e-9;  // of the values

// Of a step: what rounding may take a tick away from an end.
constexpr double slack = 1e-9;

// From 10,000,000 and below 0.001 labels share a power of ten.
constexpr int largestPlainExponent = 6;
constexpr int leastPlainExponent = -3;

// Below, powers of ten lose their digits.
constexpr int leastExponent = -300;

int decimalExponent(double size) {
  return size > 0 ? static_cast<int>(std::floor(std::log10(size) + slack)) : 0;
}

ValueRange widened(const std::optional<ValueRange>& data) {
  if (!data) return {0, 1};
  const double low = std::max(data->low, -largestValue);
  const double high = std::min(data->high, largestValue);
  const double size = std::max(std::abs(low), std::abs(high));
  if (high - low > leastSpan * size && size > 1 / largestValue) return {low, high};
  // A single value stands in the middle.
  if (size <= 1 / largestValue) return {-1, 1};
  return {std::min(0.0, 2 * low), std::max(0.0, 2 * high)};
}

// The next of 1, 2, 5, 10, 20, … times a power of ten.
double roundStep(double least) {
  const double power = std::pow(10.0, decimalExponent(least));
  for (const double factor : {1.0, 2.0, 5.0}) {
    if (factor * power >= least * (1 - slack)) return factor * power;
  }
  return 10 * power;
}

// Of a step, both whole numbers included.
std::vector<double> multiples(double step, double first, double last) {
  std::vector<double> values;
  for (int index = 0; first + index <= last; ++index) values.push_back((first + index) * step);
  return values;
}

std::string grouped(std::string text, std::string_view separator) {
  const std::size_t end = std::min(text.find('.'), text.size());
  const std::size_t start = text.starts_with('-') ? 1 : 0;
  if (end - start < 5) return text;
  for (std::size_t at = end; at > start + 3;) text.insert(at -= 3, separator);
  return text;
}

std::string signedText(const std::string& text) {
  return text == "-0" ? "0" : replacedAll(text, "-", "−");
}

class ScaleMaker {
 public:
  ScaleMaker(const ChartAxis& axis, const AxisNeeds& needs) : axis_(axis), needs_(needs) {}

  AxisScale make() {
    if (!axis_.tickPositions.empty())
      useFixedTicks();
    else if (axis_.labels == TickLabels::piMultiples)
      useMultiplesOfPi();
    else
      useFreeTicks();
    return std::move(scale_);
  }

 private:
  void useFixedTicks() {
    scale_.gridValues = axis_.tickPositions;
    const auto [low, high] = std::ranges::minmax(scale_.gridValues);
    scale_.range = {low, high};
    scale_.minorInterval = std::abs(axis_.minorTickInterval.value_or(0));
    const double size = std::max(std::abs(low), std::abs(high));
    constexpr int furtherDigits = 3;
    chooseExponent(size);
    std::size_t stride = 1;
    while ((scale_.gridValues.size() - 1) / stride >= static_cast<std::size_t>(needs_.mostLabels))
      stride *= 2;
    for (std::size_t index = 0; index < scale_.gridValues.size(); index += stride) {
      addLabel(scale_.gridValues[index], furtherDigits - (decimalExponent(size) - scale_.exponent));
    }
  }

  void useMultiplesOfPi() {
    constexpr double reach = 0.02;  // of the range: a tick so near to an end belongs to it
    ValueRange& range = scale_.range = widened(needs_.data);
    const double margin = reach * (range.high - range.low);
    double step = *axis_.tickInterval;
    const auto first = [&] { return std::ceil((range.low - margin) / step); };
    const auto last = [&] { return std::floor((range.high + margin) / step); };
    while (last() - first() >= needs_.mostLabels) step *= 2;
    for (const double value : multiples(step, first(), last())) {
      scale_.gridValues.push_back(value);
      scale_.labels.push_back({value, piTickLabel(value)});
    }
    if (scale_.gridValues.empty()) return;
    range.low = std::min(range.low, scale_.gridValues.front());
    range.high = std::max(range.high, scale_.gridValues.back());
  }

  void useFreeTicks() {
    ValueRange& range = scale_.range = widened(needs_.data);
    const ValueRange data = range;
    double step = roundStep((range.high - range.low) / (needs_.mostLabels - 1));
    const auto first = [&] { return std::ceil(range.low / step - slack); };
    const auto last = [&] { return std::floor(range.high / step + slack); };
    if (needs_.endsOnTicks) {
      const auto widen = [&] {
        range = {std::floor(data.low / step + slack) * step, std::ceil(data.high / step - slack) * step};
      };
      for (widen(); last() - first() >= needs_.mostLabels; widen()) step = roundStep(step * 1.5);
    }
    scale_.minorInterval = axis_.hasAutomaticMinorTicks ? step / 5 : 0;
    chooseExponent(std::max(std::abs(range.low), std::abs(range.high)));
    scale_.gridValues = multiples(step, first(), last());
    for (const double value : scale_.gridValues) addLabel(value, scale_.exponent - decimalExponent(step));
  }

  void chooseExponent(double largest) {
    const int exponent = std::max(leastExponent, decimalExponent(largest));
    if (exponent > largestPlainExponent || exponent < leastPlainExponent) scale_.exponent = exponent;
  }

  void addLabel(double value, int digits) {
    const std::string text = decimalText(value / std::pow(10.0, scale_.exponent), std::max(0, digits));
    scale_.labels.push_back({value, signedText(grouped(text, needs_.thousandsSeparator))});
  }

  const ChartAxis& axis_;
  const AxisNeeds& needs_;
  AxisScale scale_;
};

}  // namespace

bool isShown(const ChartPoint& point) {
  return point.size() >= 2 && std::isfinite(point[0]) && std::isfinite(point[1]);
}

std::optional<ValueRange> dataRange(const ChartOptions& options, std::size_t coordinate) {
  std::optional<ValueRange> range;
  for (const ChartSeries& series : options.series) {
    for (const ChartPoint& point : series.points) {
      if (!isShown(point)) continue;
      const double value = point[coordinate];
      if (!range) range = {value, value};
      range = {std::min(range->low, value), std::max(range->high, value)};
    }
  }
  return range;
}

AxisScale axisScale(const ChartAxis& axis, const AxisNeeds& needs) {
  return ScaleMaker(axis, needs).make();
}

std::string shortNumber(double value) {
  constexpr int digits = 6;
  const int exponent = decimalExponent(std::abs(value));
  if (exponent < leastExponent || !std::isfinite(value)) return signedText(decimalText(value, 0));
  if (exponent >= -digits && exponent <= digits) {
    return signedText(decimalText(value, std::max(0, digits - 1 - exponent)));
  }
  const double factor = value / std::pow(10.0, exponent);
  return signedText(decimalText(factor, 2)) + "·" + powerOfTen(exponent).substr(std::string_view("×").size());
}

std::string powerOfTen(int exponent) {
  if (exponent == 0) return "";
  constexpr std::array<std::string_view, 10> digits{"⁰", "¹", "²", "³", "⁴", "⁵", "⁶", "⁷", "⁸", "⁹"};
  std::string text = exponent < 0 ? "×10⁻" : "×10";
  for (const char digit : std::to_string(std::abs(exponent))) {
    text += digits.at(static_cast<std::size_t>(digit - '0'));
  }
  return text;
}

}  // namespace tavi
