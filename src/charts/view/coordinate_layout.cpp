#include "charts/view/coordinate_layout.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>
#include <limits>

#include "appearance/interface_fonts.h"
#include "charts/view/canvas.h"
#include "number/text.h"

namespace tavi {

namespace {

constexpr double edge = 12;     // from the frame to everything
constexpr double gap = 6;       // between axes and what stands beside them
constexpr double textGap = 10;  // between texts side by side
constexpr int titleSize = 16;
constexpr int labelSize = 12;
constexpr double formulaSize = 11;
constexpr int mostLabels = 7;
constexpr int fewestLabels = 3;
constexpr double leastPlot = 20;
constexpr double lowestPlot = 60;  // beside a title of the axis

constexpr std::size_t mostNames = 12;  // in the legend
constexpr double heightForLine = 70;   // of the chart
constexpr int mostLines = 4;

// Halves first, since the ends may be as far apart as numbers can be.
double part(double value, const ValueRange& range) {
  return (value / 2 - range.low / 2) / (range.high / 2 - range.low / 2);
}

// "-3π/2" as a fraction.
typeset::Layout piFormula(const std::string& label) {
  std::string latex = replacedAll(label, "π", "\\pi");
  const std::size_t sign = latex.starts_with('-') ? 1 : 0;
  if (const std::size_t bar = latex.find('/'); bar != std::string::npos) {
    latex = latex.substr(0, sign) + "\\frac{" + latex.substr(sign, bar - sign) + "}{" +
            latex.substr(bar + 1) + "}";
  }
  return setFormula(latex, formulaSize);
}

std::vector<AxisText> textsOf(const ChartAxis& axis, const AxisScale& scale, const QFont& font) {
  std::vector<AxisText> texts;
  for (const AxisLabel& label : scale.labels) {
    AxisText& text = texts.emplace_back();
    if (axis.labels == TickLabels::piMultiples) {
      text.formula = piFormula(label.text);
      text.box.setSize({text.formula.width, text.formula.height + text.formula.depth});
      text.ascent = text.formula.height;
    } else {
      text.text = textOf(label.text);
      text.box.setSize({textWidth(text.text, font), textHeight(font)});
      text.ascent = QFontMetricsF(font).ascent();
    }
  }
  return texts;
}

double widest(const std::vector<AxisText>& texts) {
  double width = 0;
  for (const AxisText& text : texts) width = std::max(width, text.box.width());
  return width;
}

// Texts side by side stand on one line.
double ascentOf(const std::vector<AxisText>& texts) {
  double ascent = 0;
  for (const AxisText& text : texts) ascent = std::max(ascent, text.ascent);
  return ascent;
}

double heightOf(const std::vector<AxisText>& texts) {
  double depth = 0;
  for (const AxisText& text : texts) depth = std::max(depth, text.box.height() - text.ascent);
  return ascentOf(texts) + depth;
}

// The title of an axis, with what its labels are to be multiplied by.
QString titleOf(const ChartAxis& axis, const AxisScale& scale) {
  const QString power = textOf(powerOfTen(scale.exponent));
  return axis.title.empty() || power.isEmpty() ? textOf(axis.title) + power
                                               : textOf(axis.title) + QStringLiteral("  ") + power;
}

PlacedText placed(const QString& text, const QFont& font, double width, QPointF place) {
  return {shortened(text, font, width), font, place};
}

// Side by side and in further lines where one is too short, each line in the middle. The height they take.
double layOutLegend(std::vector<LegendEntry>& entries, double width) {
  double height = 0;
  for (auto first = entries.begin(); first != entries.end();) {
    double length = 0;
    auto end = first;
    for (; end != entries.end(); ++end) {
      const double further = legendSymbolRoom + textWidth(end->name.text, end->name.font);
      if (end != first && length + 2 * textGap + further > width) break;
      end->name.place = {length + (end == first ? 0 : 2 * textGap) + legendSymbolRoom, height};
      length = end->name.place.x() - legendSymbolRoom + further;
    }
    for (auto entry = first; entry != end; ++entry) entry->name.place.rx() += (width - length) / 2;
    height += textHeight(first->name.font);
    first = end;
  }
  return height;
}

// Names cut so that they do not take more than those lines.
std::vector<LegendEntry> legendOf(const ChartOptions& options, const QFont& font, double width, int lines) {
  std::vector<LegendEntry> entries;
  for (std::size_t index = 0; index < options.series.size() && entries.size() < mostNames; ++index) {
    const ChartSeries& series = options.series[index];
    const auto named = std::ranges::find_if(entries, [&](const LegendEntry& entry) {
      const ChartSeries& other = options.series[entry.series];
      return other.name == series.name && other.color == series.color;
    });
    // Points marked on a line need no name of their own.
    if (named != entries.end() && !series.markerRadius) named->series = index;
    if (named != entries.end() || series.name.empty()) continue;
    entries.push_back({{textOf(series.name), font, {}}, index});
  }
  const double inLine = std::ceil(static_cast<double>(entries.size()) / lines);
  const double room = (width - (inLine - 1) * 2 * textGap) / std::max(1.0, inLine) - legendSymbolRoom;
  for (LegendEntry& entry : entries) entry.name.text = shortened(entry.name.text, font, room);
  return entries;
}

// Labels in the order of their places; those that would touch the one before are left out.
void dropTouching(std::vector<AxisText>& texts, double distance) {
  std::vector<AxisText> kept;
  for (AxisText& text : texts) {
    if (kept.empty() || !kept.back().box.adjusted(-distance, 0, distance, 0).intersects(text.box))
      kept.push_back(std::move(text));
  }
  texts = std::move(kept);
}

}  // namespace

CoordinateLayout::CoordinateLayout(const ChartOptions& options, QSizeF size) {
  const QFont font = InterfaceFont::book(labelSize);
  const double lineHeight = textHeight(font);
  const double width = size.width() - 2 * edge;
  const auto scaleOfX = [&](int labels) {
    return axisScale(options.xAxis, {.data = dataRange(options, 0),
                                     .mostLabels = labels,
                                     .thousandsSeparator = options.language.thousandsSeparator});
  };
  const auto scaleOfY = [&](int labels) {
    std::optional<ValueRange> data = dataRange(options, 1);
    if (data && options.type == ChartType::area) data = {std::min(data->low, 0.0), std::max(data->high, 0.0)};
    return axisScale(options.yAxis, {.data = data,
                                     .endsOnTicks = true,
                                     .mostLabels = labels,
                                     .thousandsSeparator = options.language.thousandsSeparator});
  };

  // From the foot and from the top to the plot in between.
  x = scaleOfX(mostLabels);
  xTexts = textsOf(options.xAxis, x, font);
  xTitle = placed(titleOf(options.xAxis, x), font, width / 2, {});
  const double xTitleWidth = textWidth(xTitle.text, font);
  const double nameSize = std::clamp(size.height() / 26, double{labelSize}, options.legend.itemFontSize);
  const double legendWidth = width - (xTitleWidth > 0 ? xTitleWidth + textGap : 0);
  legend = legendOf(options, InterfaceFont::book(static_cast<int>(nameSize)), legendWidth,
                    std::clamp(static_cast<int>(size.height() / heightForLine), 1, mostLines));
  const double footHeight = std::max(layOutLegend(legend, legendWidth), xTitleWidth > 0 ? lineHeight : 0);
  const double foot = size.height() - edge - footHeight;
  for (LegendEntry& entry : legend) entry.name.place += QPointF(edge, foot);
  xTitle.place = {size.width() - edge - xTitleWidth, foot};
  // Below the lower half of the last label of the other axis.
  const double xGap = lineHeight / 2 + 1;
  const double bottom = foot - gap - heightOf(xTexts) - xGap;

  double top = edge;
  title = placed(textOf(options.title), InterfaceFont::book(titleSize), width, {edge, top});
  if (!title.text.isEmpty()) top += textHeight(title.font) + 2;
  y = scaleOfY(mostLabels);
  yTitle = placed(titleOf(options.yAxis, y), font, width, {edge, top});
  // What the other texts leave to a low chart is for the plot.
  if (bottom - top - 2 * lineHeight < lowestPlot && y.exponent == 0) yTitle.text.clear();
  if (!yTitle.text.isEmpty()) top += lineHeight + 2;
  top += lineHeight / 2;

  const double height = std::max(leastPlot, bottom - top);
  y = scaleOfY(std::clamp(static_cast<int>(height / (1.6 * lineHeight)) + 1, fewestLabels, mostLabels));
  yTexts = textsOf(options.yAxis, y, font);

  // As many labels beside each other as there is room for.
  for (int labels = mostLabels; labels >= fewestLabels; --labels) {
    x = scaleOfX(labels);
    xTexts = textsOf(options.xAxis, x, font);
    const double half = widest(xTexts) / 2;
    const double left = edge + std::max(widest(yTexts) + gap, half);
    plot = {left, top, std::max(leastPlot, size.width() - edge - half - left), height};
    for (std::size_t index = 0; index < xTexts.size(); ++index) {
      QRectF& box = xTexts[index].box;
      box.moveTopLeft({placeX(x.labels[index].value) - box.width() / 2,
                       plot.bottom() + xGap + ascentOf(xTexts) - xTexts[index].ascent});
    }
    const std::size_t all = xTexts.size();
    dropTouching(xTexts, textGap);
    if (xTexts.size() == all) break;
  }
  for (std::size_t index = 0; index < yTexts.size(); ++index) {
    QRectF& box = yTexts[index].box;
    box.moveTopLeft({plot.left() - gap - box.width(), placeY(y.labels[index].value) - box.height() / 2});
  }
  dropTouching(yTexts, 0);
}

double CoordinateLayout::placeX(double value) const {
  return plot.left() + part(value, x.range) * plot.width();
}

double CoordinateLayout::placeY(double value) const {
  return plot.bottom() - part(value, y.range) * plot.height();
}

std::optional<QPointF> CoordinateLayout::place(const ChartPoint& point) const {
  if (!isShown(point)) return std::nullopt;
  const QPointF place(placeX(point[0]), placeY(point[1]));
  if (!std::isfinite(place.x()) || !std::isfinite(place.y())) return std::nullopt;
  return place;
}

bool CoordinateLayout::isInPlot(QPointF place) const {
  constexpr double tolerance = 1e-6;
  return plot.adjusted(-tolerance, -tolerance, tolerance, tolerance).contains(place);
}

}  // namespace tavi
