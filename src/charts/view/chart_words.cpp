#include "charts/view/chart_words.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <optional>
#include <vector>

#include "charts/view/axis_scale.h"
#include "number/number_text.h"
#include "typeset/parser.h"

namespace tavi {

namespace {

using typeset::Phrase;

constexpr Phrase axisRange{"chartAxisRange", "%1 from %2 to %3"};
constexpr Phrase noPoints{"chartNoPoints", "%1: no points"};
constexpr Phrase onePoint{"chartOnePoint", "%1: one point, %2"};
constexpr Phrase points{"chartPoints", "%1: %2 points, from %3 to %4, lowest %5, highest %6"};
constexpr Phrase valueAt{"chartValueAt", "%1 at %2"};
constexpr Phrase tree{"chartTree", "probability tree of %1 trials, probability of success %2, of failure %3"};
constexpr Phrase angle{"chartAngle", "unit circle, angle %1, full turns %2 and %3, cosine %4, sine %5"};
constexpr Phrase noAngle{"chartNoAngle", "unit circle"};
constexpr Phrase quadrant{"chartQuadrant", "quadrant %1"};
constexpr std::array kinds{Phrase{"chartLine", "line chart"}, Phrase{"chartCurve", "curve"},
                           Phrase{"chartScatter", "chart of points"}, Phrase{"chartArea", "area chart"}};

class Words {
 public:
  explicit Words(const typeset::PhraseLookup& lookUp) : lookUp_(lookUp) {}

  std::string of(const CoordinateChartView& chart) const {
    const ChartOptions& options = chart.options;
    Sentences sentences{options.title, said(kinds.at(static_cast<std::size_t>(options.type)))};
    addRange(sentences, options.xAxis, options, 0);
    addRange(sentences, options.yAxis, options, 1);
    for (const ChartSeries& series : options.series) sentences.push_back(of(series));
    return joined(sentences);
  }

  std::string of(const TreeChartView& view) const {
    return joined({view.chartTitle, said(tree, {std::to_string(view.rootNode.trials()),
                                                view.probabilitySuccess, view.probabilityFailure})});
  }

  std::string of(const UnitCircleChartView& view) const {
    const UnitCircleLabels& labels = view.labels;
    Sentences sentences{labels.alpha
                            ? said(angle, {*labels.alpha, std::to_string(*labels.fullCircles), *labels.gamma,
                                           shortNumber(*labels.pX), shortNumber(*labels.pY)})
                            : said(noAngle)};
    if (view.quadrant) sentences.push_back(said(quadrant, {std::string(rawValue(*view.quadrant))}));
    return joined(sentences);
  }

  std::string of(const DistributionFunctionPresentationView& view) const {
    Sentences sentences{spoken(view.labelLeft)};
    for (std::size_t line = 0; line < view.values.size(); ++line)
      sentences.push_back(spoken(view.values.at(line) + view.ranges.at(line)));
    return joined(sentences);
  }

 private:
  using Sentences = std::vector<std::string>;

  static std::string joined(const Sentences& sentences) {
    std::string text;
    for (const std::string& sentence : sentences) {
      if (!text.empty() && !sentence.empty()) text += ". ";
      text += sentence;
    }
    return text;
  }

  // The phrase with the values in the places of %1 to %9, once each, whatever they hold.
  std::string said(const Phrase& phrase, std::initializer_list<std::string> values = {}) const {
    std::string text;
    const std::string form = lookUp_(phrase);
    for (std::size_t at = 0; at < form.size(); ++at) {
      const auto number = static_cast<std::size_t>(at + 1 < form.size() ? form[at + 1] - '1' : -1);
      if (form[at] == '%' && number < values.size()) {
        text += values.begin()[number];
        ++at;
      } else {
        text += form[at];
      }
    }
    return text;
  }

  std::string spoken(const std::string& latex) const {
    return typeset::spokenMath(typeset::parse(latex).list, lookUp_);
  }

  void addRange(Sentences& sentences, const ChartAxis& axis, const ChartOptions& options,
                std::size_t coordinate) const {
    std::optional<ValueRange> range = dataRange(options, coordinate);
    if (axis.minimum && axis.maximum) range = ValueRange{*axis.minimum, *axis.maximum};
    if (!range) return;
    const auto [low, high] = std::minmax(range->low, range->high);
    sentences.push_back(said(axisRange, {axis.title, shortNumber(low), shortNumber(high)}));
  }

  std::string of(const ChartSeries& series) const {
    std::vector<const ChartPoint*> shown;
    for (const ChartPoint& point : series.points)
      if (isShown(point)) shown.push_back(&point);
    if (shown.empty()) return said(noPoints, {series.name});
    const auto place = [this](const ChartPoint* point) {
      return said(valueAt, {shortNumber(point->at(1)), shortNumber(point->at(0))});
    };
    if (shown.size() == 1) return said(onePoint, {series.name, place(shown.front())});
    const auto [lowest, highest] =
        std::ranges::minmax_element(shown, {}, [](const ChartPoint* point) { return point->at(1); });
    return said(points, {series.name, std::to_string(shown.size()), place(shown.front()), place(shown.back()),
                         place(*lowest), place(*highest)});
  }

  const typeset::PhraseLookup& lookUp_;
};

}  // namespace

std::string chartWords(const ChartView& view, const typeset::PhraseLookup& phrase) {
  return std::visit([&](const auto& each) { return Words(phrase).of(each); }, view);
}

}  // namespace tavi
