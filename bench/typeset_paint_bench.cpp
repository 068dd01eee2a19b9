// How fast lines are drawn, without a screen.
#include <string_view>

#include <benchmark/benchmark.h>

#include <QtGui/QGuiApplication>
#include <QtGui/QImage>
#include <QtGui/QPainter>

#include "typeset/bundled_font.h"
#include "typeset/math_painter.h"
#include "typeset/typeset.h"

namespace tavi::typeset {
namespace {

constexpr std::string_view usualLine =
    "=\\sqrt[3]{8^{\\color{#5774f7}{2}}}=\\frac{3}{2}^{-2}=\\frac{4}{9}\\approx 0.44444";

MathFont& font() {
  static MathFont opened = MathFont::open(bundledMathFont()).value();
  return opened;
}

void paintUsualLine(benchmark::State& state) {
  const Layout layout = typeset(usualLine, font(), 20);
  const MathPicture picture(layout);
  const auto scale = static_cast<double>(state.range(0));
  QImage image(QSizeF(layout.width * scale, 50 * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.scale(scale, scale);
  for (auto _ : state) {
    image.fill(Qt::transparent);
    picture.paint(painter, {0, 30}, {});
  }
}
BENCHMARK(paintUsualLine)->Arg(1)->Arg(2)->Unit(benchmark::kMicrosecond);

void makePicture(benchmark::State& state) {
  const Layout layout = typeset(usualLine, font(), 20);
  for (auto _ : state) benchmark::DoNotOptimize(MathPicture(layout));
}
BENCHMARK(makePicture)->Unit(benchmark::kMicrosecond);

// One frame of scrolling: what a screen's width shows of a line some 30,000 pixels wide.
void paintSliceOfWideLine(benchmark::State& state) {
  std::string line = "=";
  for (int count = 0; count < 700; ++count) line += "\\left( \\frac{2}{3} \\right) ";
  const Layout layout = typeset(line, font(), 20);
  const MathPicture picture(layout);
  constexpr double width = 800;
  QImage image(static_cast<int>(width), 60, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  double left = 0;
  for (auto _ : state) {
    image.fill(Qt::transparent);
    picture.paint(painter, {-left, 30}, {}, left, left + width);
    left = left + 7 < layout.width - width ? left + 7 : 0;
  }
}
BENCHMARK(paintSliceOfWideLine)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tavi::typeset

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
