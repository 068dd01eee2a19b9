#include "chart_answer.h"

#include <array>
#include <charconv>
#include <cmath>
#include <optional>

#include <nlohmann/json.hpp>

#include "charts/chart_manager.h"
#include "charts/chart_reader.h"
#include "json_lines.h"
#include "number/fatal_stop.h"

namespace tavi::cli {
namespace {

using nlohmann::ordered_json;

template <typename Value>
ordered_json orNull(const std::optional<Value>& value) {
  return value ? ordered_json(*value) : ordered_json(nullptr);
}

std::string_view nameOf(ChartType type) {
  constexpr std::array<std::string_view, 4> names{"line", "spline", "scatter", "area"};
  return names.at(static_cast<std::size_t>(type));
}

ordered_json asJson(const ChartSeries& series) {
  ordered_json json{{"name", series.name}, {"color", series.color}, {"points", series.points}};
  if (series.markerRadius) json["markerRadius"] = *series.markerRadius;
  if (series.isStepped) json["step"] = "left";
  return json;
}

ordered_json asJson(const ChartAxis& axis) {
  const bool hasTicks = !axis.tickPositions.empty();
  return {{"title", axis.title},
          {"minimum", orNull(axis.minimum)},
          {"maximum", orNull(axis.maximum)},
          {"tickPositions", hasTicks ? ordered_json(axis.tickPositions) : ordered_json(nullptr)},
          {"tickInterval", orNull(axis.tickInterval)},
          {"minorTickInterval",
           axis.hasAutomaticMinorTicks ? ordered_json("auto") : orNull(axis.minorTickInterval)},
          {"labels", axis.labels == TickLabels::piMultiples ? "piMultiples" : "plain"}};
}

ordered_json asJson(std::string_view kind, const ChartOptions& options) {
  ordered_json series = ordered_json::array();
  for (const ChartSeries& each : options.series) series.push_back(asJson(each));
  return {{"kind", kind},
          {"chartType", nameOf(options.type)},
          {"title", options.title},
          {"series", std::move(series)},
          {"xAxis", asJson(options.xAxis)},
          {"yAxis", asJson(options.yAxis)},
          {"tooltip", {{"header", options.tooltip.header}, {"point", options.tooltip.point}}}};
}

ordered_json asJson(const LineChartView& view) {
  return asJson("LineChartView", view.options);
}
ordered_json asJson(const SplineChartView& view) {
  return asJson("SplineChartView", view.options);
}
ordered_json asJson(const AreaChartView& view) {
  return asJson("AreaChartView", view.options);
}

ordered_json asJson(const UnitCircleChartView& view) {
  ordered_json turns = ordered_json::array();
  for (const UnitCircleTurn& turn : view.turns) {
    turns.push_back({{"degrees", {turn.degreesFrom, turn.degreesTo}},
                     {"gamma", turn.gamma},
                     {"radians", turn.radians},
                     {"hue", turn.hue},
                     {"brightness", turn.brightness}});
  }
  ordered_json json{
      {"kind", "UnitCircleChartView"},
      {"turns", std::move(turns)},
      {"fullCirclesLabel", orNull(view.labels.fullCircles)},
      {"alphaLabel", orNull(view.labels.alpha)},
      {"gammaLabel", orNull(view.labels.gamma)},
      {"pX", orNull(view.labels.pX)},
      {"pY", orNull(view.labels.pY)},
      {"finished", view.isFinished},
      {"quadrant", view.quadrant ? ordered_json(rawValue(*view.quadrant)) : ordered_json(nullptr)}};
  if (view.isFinished) json["point"] = {std::cos(view.b), std::sin(view.b)};
  return json;
}

ordered_json asJson(const DistributionFunctionPresentationView& view) {
  ordered_json labels{view.labelLeft, view.labelMid};
  for (const std::string& label : view.values) labels.push_back(label);
  for (const std::string& label : view.ranges) labels.push_back(label);
  return {{"kind", "DistributionFunctionPresentationView"}, {"labels", std::move(labels)}};
}

template <typename View>
void append(std::string& out, const View& view) {
  out += asJson(view).dump();
}

// A tree may have millions of nodes, so they leave one by one. None of their texts needs an escape.
void append(std::string& out, const TreeChartView& tree) {
  const ordered_json head{{"kind", "TreeChartView"},
                          {"title", tree.chartTitle},
                          {"size", {tree.width, tree.height}},
                          {"probabilitySuccess", tree.probabilitySuccess},
                          {"probabilityFailure", tree.probabilityFailure}};
  out += head.dump();
  out.back() = ',';
  out += R"("nodes":[)";
  const auto appendNumber = [&out](double value) {
    std::array<char, 32> digits{};
    const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), value);
    out.append(digits.data(), result.ptr);
  };
  visitNodes(tree, [&](const PlacedNode& place) {
    const TreeNode& node = place.node;
    if (!node.value().empty()) out += ',';
    out += R"({"value":")" + node.value() + R"(","x":)";
    appendNumber(place.x);
    out += R"(,"y":)";
    appendNumber(place.y);
    out += node.isHighlighted() ? R"(,"highlighted":true,"chain":[)" : R"(,"highlighted":false,"chain":[)";
    for (const std::string& event : node.chainOfEvents()) out += '"' + event + "\",";
    if (out.back() == ',') out.pop_back();
    out += ']';
    if (node.isLeaf()) out += R"(,"leaf":")" + leafText(tree, node) + '"';
    out += '}';
    return writeBlock(out);
  });
  out += "]}";
}

}  // namespace

void answerChartLine(std::string_view line, std::string& out) {
  const auto read = readChartRequest(line);
  if (const auto* error = std::get_if<ChartRequestError>(&read)) {
    out += ordered_json{{"id", nullptr}, {"error", error->reason}}.dump();
    return;
  }
  const auto& [id, width, charts] = std::get<ChartRequest>(read);
  out += R"({"id":)" + id;
  try {
    ordered_json frame;
    if (!charts.empty()) {
      const ChartFrame place = ChartManager::chartFrame(*charts.front(), width);
      frame = {place.x, place.y, place.width, place.height};
    }
    const std::optional<ChartView> view = ChartManager::chartView(charts);
    out += R"(,"frame":)" + frame.dump() + R"(,"view":)";
    if (view) {
      std::visit([&out](const auto& each) { append(out, each); }, *view);
    } else {
      out += "null";
    }
  } catch (const FatalStop& stop) {
    out += R"(,"fatal":)" + ordered_json(stop.reason).dump();
  }
  out += '}';
}

}  // namespace tavi::cli
