// A solution with a row of each kind of chart: the examples that the tests hold.
#include <QFile>
#include <variant>

#include "charts/chart_reader.h"
#include "tour/tour.h"

namespace tavi::tour {

namespace {

ChartRow example(const char* name) {
  QFile file(QStringLiteral(TAVI_CHART_EXAMPLES "/%1.json").arg(QLatin1StringView(name)));
  if (!file.open(QIODevice::ReadOnly))
    throw Failure("no example of a chart: " + file.fileName().toStdString());
  auto read = readChartRequest(file.readAll().toStdString());
  auto* request = std::get_if<ChartRequest>(&read);
  if (request == nullptr) throw Failure(std::get<ChartRequestError>(read).reason);
  return request->charts;
}

/// The sample task solved, with these charts under its working.
void showCharts(Stage& stage, std::initializer_list<const char*> names) {
  stage.clearTheView();
  stage.solve(Mode::power, u"-2", u"3/2");
  const SolutionSteps steps = stage.delegate().solutionViewController()->solutionSteps();
  ChartRows charts;
  for (const char* name : names) charts.push_back(example(name));
  SolutionViewController::showSolution(stage.delegate().pageTabBarController().get(), steps, charts,
                                       QStringLiteral("qrx_info"), std::nullopt, 100);
  QQuickItem& table = stage.item(QStringLiteral("solutionTable"));
  const auto firstChart = static_cast<int>(steps.size());
  // The second time the table knows how high the rows on the way are.
  for (int i = 0; i < 2; ++i)
    QMetaObject::invokeMethod(&table, "positionViewAtIndex", Q_ARG(int, firstChart), Q_ARG(int, 0));
}

}  // namespace

void lineCharts(Stage& stage) {
  showCharts(stage, {"straight_line", "sine", "parabola_and_line", "four_coins_histogram", "tangent"});
}

void stepCharts(Stage& stage) {
  showCharts(stage, {"two_coins_distribution", "single_trial_formula", "three_dice_tree"});
}

void movingCircle(Stage& stage) {
  showCharts(stage, {"more_than_one_turn"});
  waitUntil(
      [&stage] {
        const double progress = stage.item(QStringLiteral("chart")).property("progress").toDouble();
        return progress > 0.3 && progress < 1;
      },
      "the arrow is on its way");
}

void restingCircle(Stage& stage) {
  showCharts(stage, {"more_than_one_turn"});
  waitUntil([&stage] { return stage.item(QStringLiteral("chart")).property("progress").toDouble() == 1; },
            "the arrow has arrived");
}

void sharedCharts(Stage& stage) {
  showCharts(stage, {"straight_line", "three_dice_tree", "more_than_one_turn"});
  stage.share();
}

}  // namespace tavi::tour
