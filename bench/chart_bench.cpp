// How fast charts are worked out and drawn, without a screen.
#include <cmath>
#include <numbers>

#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include <QtGui/QGuiApplication>
#include <QtGui/QImage>
#include <QtGui/QPainter>

#include "charts/view/chart_picture.h"

namespace tavi {
namespace {

constexpr QSizeF phone(371, 309);  // a chart on a page 412 wide
constexpr double scale = 2;

void computeGraph(benchmark::State& state, TrigonometricType type, double length) {
  TrigonometricChartData data;
  data.lengthOfGraph = length;
  data.periodLength = 2 * std::numbers::pi;
  data.amplitude = 1;
  data.type = type;
  std::size_t points = 0;
  for (auto _ : state) {
    const SplineChartView view = SplineChartManager::trigonometricChartView(data);
    points = view.options.series[0].points.size();
  }
  state.counters["points"] = static_cast<double>(points);
}
BENCHMARK_CAPTURE(computeGraph, sine, TrigonometricType::sin, 6.28)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(computeGraph, tangent, TrigonometricType::tan, 70.25)->Unit(benchmark::kMillisecond);

QImage canvas() {
  QImage image((phone * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::white);
  return image;
}

// The layout with the first frame, as when a row comes into sight.
void paintPoints(benchmark::State& state, ChartType type) {
  ChartSeries series{"f", "#ed407a"};
  const auto count = static_cast<int>(state.range(0));
  for (int index = 0; index < count; ++index) {
    const double x = 20.0 * index / count;
    series.points.push_back({x, std::sin(x) + 0.3 * std::sin(37 * x) + 0.1 * std::sin(7919 * x)});
  }
  if (type == ChartType::scatter) series.markerRadius = 1;
  const auto view = std::make_shared<const ChartView>(SplineChartView{
      {chartOptions(type, "Title", {series}, xAxis("x", {}, {}, false), yAxis("y", {}, {}))}});
  QImage image = canvas();
  QPainter painter(&image);
  painter.scale(scale, scale);
  for (auto _ : state) ChartPicture(view, phone, ChartPalette::current()).paint(painter);
}
BENCHMARK_CAPTURE(paintPoints, line, ChartType::line)->Arg(1000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(paintPoints, spline, ChartType::spline)->Arg(65)->Arg(1000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(paintPoints, area, ChartType::area)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(paintPoints, scatter, ChartType::scatter)->Arg(100000)->Unit(benchmark::kMillisecond);

BernoulliDistributionTreeChartData& treeOf(std::int64_t trials) {
  static BernoulliDistributionTreeChartData data;
  data.chartTitle = "Title";
  data.probabilityOfSuccess = 1.0 / 6;
  data.hits = trials / 2;
  data.trials = trials;
  return data;
}

void buildTree(benchmark::State& state) {
  const auto& data = treeOf(state.range(0));
  QImage image = canvas();
  QPainter painter(&image);
  painter.scale(scale, scale);
  for (auto _ : state) {
    const auto view = std::make_shared<const ChartView>(TreeChartManager::treeChartView(data));
    ChartPicture(view, phone, ChartPalette::current()).paint(painter);
  }
}
BENCHMARK(buildTree)->Arg(12)->Arg(20)->Unit(benchmark::kMillisecond);

double residentMegabytes() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return static_cast<double>(usage.ru_maxrss) / 1024;
}

// Frames all over the tree, most of them among its leaves, where most is to be seen.
void scrollTree(benchmark::State& state) {
  const double before = residentMegabytes();
  const auto view =
      std::make_shared<const ChartView>(TreeChartManager::treeChartView(treeOf(state.range(0))));
  const ChartPicture picture(view, phone, ChartPalette::current());
  const QSizeF room = picture.contentSize() - phone;
  QImage image = canvas();
  QPainter painter(&image);
  painter.scale(scale, scale);
  int frame = 0;
  for (auto _ : state) {
    ++frame;
    const QPointF scroll(std::fmod(frame * 0.618034, 1) * room.width(),
                         std::min(room.height(), frame % 10 * room.height() / 8));
    picture.paint(painter, {.scroll = scroll});
  }
  state.counters["MB"] = residentMegabytes() - before;
}
BENCHMARK(scrollTree)->Arg(12)->Arg(20)->Unit(benchmark::kMillisecond);

void animateUnitCircle(benchmark::State& state) {
  const UnitCircleChartData data(480, 480 * std::numbers::pi / 180, 120, 1, Quadrant::second);
  const auto view = std::make_shared<const ChartView>(UnitCircleChartManager::unitCircleChartView(data));
  const ChartPicture picture(view, {371, 185}, ChartPalette::current());
  QImage image = canvas();
  QPainter painter(&image);
  painter.scale(scale, scale);
  double progress = 0;
  for (auto _ : state) {
    progress = std::fmod(progress + 0.01, 1);
    picture.paint(painter, {.progress = progress});
  }
}
BENCHMARK(animateUnitCircle)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tavi

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
