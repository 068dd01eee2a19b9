#include "charts/chart_reader.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

#include <nlohmann/json.hpp>

#include "number/text.h"

namespace tavi {

namespace {

using nlohmann::json;

// Deeper than any description; what is kept and written out again must not nest without bounds.
constexpr int deepestNesting = 32;

bool isTooDeep(std::string_view text) {
  int depth = 0;
  bool isInString = false;
  for (std::size_t at = 0; at < text.size() && depth <= deepestNesting; ++at) {
    const char next = text[at];
    if (isInString && next == '\\')
      ++at;
    else if (next == '"')
      isInString = !isInString;
    else if (!isInString && (next == '[' || next == '{'))
      ++depth;
    else if (!isInString && (next == ']' || next == '}'))
      --depth;
  }
  return depth > deepestNesting;
}

// Leaves readChartRequest as its result.
struct Malformed {
  std::string reason;
};

// The values of each type. False for a value of another one.

bool decode(const json& value, double& number) {
  if (!value.is_number()) return false;
  number = value.get<double>();
  return true;
}

// Also of a writer that knows floating point only, such as 2.0.
bool decode(const json& value, std::int64_t& number) {
  if (value.is_number_float()) {
    constexpr double end = 0x1p63;
    const auto whole = value.get<double>();
    if (whole != std::trunc(whole) || whole < -end || whole >= end) return false;
    number = static_cast<std::int64_t>(whole);
    return true;
  }
  if (!value.is_number_integer()) return false;
  constexpr auto largest = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
  if (value.is_number_unsigned() && value.get<std::uint64_t>() > largest) return false;
  number = value.get<std::int64_t>();
  return true;
}

bool decode(const json& value, bool& flag) {
  if (!value.is_boolean()) return false;
  flag = value.get<bool>();
  return true;
}

bool decode(const json& value, std::string& text) {
  if (!value.is_string()) return false;
  text = value.get<std::string>();
  return true;
}

bool decode(const json& value, Quadrant& quadrant) {
  const auto read = value.is_string() ? quadrantFromRawValue(value.get<std::string>()) : std::nullopt;
  if (read) quadrant = *read;
  return read.has_value();
}

bool decode(const json& value, TrigonometricType& type) {
  constexpr std::array names{"sin", "cos", "tan"};
  const auto* const name = std::ranges::find_if(names, [&](const char* each) { return value == each; });
  if (name == names.end()) return false;
  type = static_cast<TrigonometricType>(name - names.begin());
  return true;
}

bool decode(const json& value, HistogramChartData::Series& series);
bool decode(const json& value, std::shared_ptr<ChartData>& chart);

template <typename Element>
bool decode(const json& value, std::vector<Element>& list) {
  if (!value.is_array()) return false;
  list.reserve(value.size());
  return std::ranges::all_of(value, [&](const json& each) { return decode(each, list.emplace_back()); });
}

class Fields {
 public:
  explicit Fields(const json& object) : object_(object) {
    if (!object.is_object()) throw Malformed{"no JSON object"};
  }

  template <typename Value>
  void read(const char* name, Value& value) const {
    const auto field = object_.find(name);
    if (field == object_.end()) throw Malformed{joined({name, " is missing"})};
    if (!decode(*field, value)) throw Malformed{joined({name, " has a wrong value"})};
  }

  template <typename Value>
  void read(const char* name, std::optional<Value>& value) const {
    const auto field = object_.find(name);
    if (field == object_.end() || field->is_null()) return;
    read(name, value.emplace());
  }

 private:
  const json& object_;
};

bool decode(const json& value, HistogramChartData::Series& series) {
  const Fields fields(value);
  fields.read("hexColor", series.hexColor);
  fields.read("dataValues", series.dataValues);
  return true;
}

// A description of each class.

void readFields(const Fields&, ChartData&) {}

void readFields(const Fields& fields, LineChartData& chart) {
  fields.read("chartTitle", chart.chartTitle);
  fields.read("dataName", chart.dataName);
  fields.read("chartColorHexCode", chart.chartColorHexCode);
  fields.read("startPoint", chart.startPoint);
  fields.read("endPoint", chart.endPoint);
  fields.read("markedPoints", chart.markedPoints);
  fields.read("axisLimit", chart.axisLimit);
}

void readFields(const Fields& fields, UnitCircleChartData& chart) {
  fields.read("alpha", chart.alpha);
  fields.read("b", chart.b);
  fields.read("angle", chart.angle);
  fields.read("fullCircles", chart.fullCircles);
  fields.read("quadrant", chart.quadrant);
}

void readFields(const Fields& fields, TrigonometricChartData& chart) {
  fields.read("lengthOfGraph", chart.lengthOfGraph);
  fields.read("offset", chart.offset);
  fields.read("periodLength", chart.periodLength);
  fields.read("amplitude", chart.amplitude);
  fields.read("type", chart.type);
}

void readFields(const Fields& fields, CommonSplineChartData& chart) {
  fields.read("chartTitle", chart.chartTitle);
  fields.read("dataName", chart.dataName);
  fields.read("chartColorHexCode", chart.chartColorHexCode);
  fields.read("dataSet", chart.dataSet);
  fields.read("lengthOfGraph", chart.lengthOfGraph);
}

void readFields(const Fields& fields, HistogramChartData& chart) {
  fields.read("chartTitle", chart.chartTitle);
  fields.read("dataName", chart.dataName);
  fields.read("xAxisName", chart.xAxisName);
  fields.read("dataSetWithColorTheme", chart.dataSetWithColorTheme);
}

void readFields(const Fields& fields, DistributionFunctionChartData& chart) {
  fields.read("chartTitle", chart.chartTitle);
  fields.read("dataName", chart.dataName);
  fields.read("xAxisName", chart.xAxisName);
  fields.read("chartColorHexCode", chart.chartColorHexCode);
  fields.read("dataSet", chart.dataSet);
  fields.read("isPresentationView", chart.isPresentationView);
  fields.read("isConverse", chart.isConverse);
}

void readFields(const Fields& fields, BernoulliDistributionTreeChartData& chart) {
  fields.read("chartTitle", chart.chartTitle);
  fields.read("chartColorHexCode", chart.chartColorHexCode);
  fields.read("probabilityOfSuccess", chart.probabilityOfSuccess);
  fields.read("hits", chart.hits);
  fields.read("trials", chart.trials);
}

template <typename Chart>
std::shared_ptr<ChartData> readChart(const Fields& fields) {
  auto chart = std::make_shared<Chart>();
  fields.read("frameRatio", chart->frameRatio);
  readFields(fields, *chart);
  return chart;
}

// Its ratio is its own unless another is told.
template <>
std::shared_ptr<ChartData> readChart<UnitCircleChartData>(const Fields& fields) {
  auto chart = std::make_shared<UnitCircleChartData>(std::nullopt, std::nullopt, std::nullopt, std::nullopt,
                                                     std::nullopt);
  std::optional<double> frameRatio;
  fields.read("frameRatio", frameRatio);
  chart->frameRatio = frameRatio.value_or(chart->frameRatio);
  readFields(fields, *chart);
  return chart;
}

struct Kind {
  std::string_view name;
  std::shared_ptr<ChartData> (*read)(const Fields& fields);
};

constexpr std::array kinds{
    Kind{"ChartData", readChart<ChartData>},
    Kind{"LineChartData", readChart<LineChartData>},
    Kind{"UnitCircleChartData", readChart<UnitCircleChartData>},
    Kind{"TrigonometricChartData", readChart<TrigonometricChartData>},
    Kind{"CommonSplineChartData", readChart<CommonSplineChartData>},
    Kind{"HistogramChartData", readChart<HistogramChartData>},
    Kind{"DistributionFunctionChartData", readChart<DistributionFunctionChartData>},
    Kind{"BernoulliDistributionTreeChartData", readChart<BernoulliDistributionTreeChartData>},
};

bool decode(const json& value, std::shared_ptr<ChartData>& chart) {
  const Fields fields(value);
  std::string name;
  fields.read("kind", name);
  const auto* const kind = std::ranges::find(kinds, name, &Kind::name);
  if (kind == kinds.end()) throw Malformed{"no such kind of chart"};
  chart = kind->read(fields);
  return true;
}

ChartRequest decoded(const json& request) {
  const Fields fields(request);
  ChartRequest read;
  read.id = request.contains("id") ? request["id"].dump() : "null";
  fields.read("width", read.width);
  fields.read("charts", read.charts);
  return read;
}

}  // namespace

std::variant<ChartRequest, ChartRequestError> readChartRequest(std::string_view text) {
  if (isTooDeep(text)) return ChartRequestError{"nested too deeply"};
  const json request = json::parse(text, nullptr, false);
  try {
    return decoded(request);
  } catch (const Malformed& malformed) {
    return ChartRequestError{malformed.reason};
  }
}

}  // namespace tavi
