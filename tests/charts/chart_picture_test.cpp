#include "charts/view/chart_picture.h"

#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

#include <gtest/gtest.h>

#include <QtGui/QImage>
#include <QtGui/QPainter>

#include "appearance/appearance.h"
#include "charts/chart_reader.h"

namespace tavi {
namespace {

constexpr QSizeF sizes[] = {{288, 144}, {371, 185}, {371, 309}, {756, 378}, {1200, 400}};

std::shared_ptr<const ChartView> viewOf(const std::string& example) {
  std::ifstream file(TAVI_CHART_EXAMPLES "/" + example + ".json");
  const auto read = readChartRequest(std::string(std::istreambuf_iterator<char>(file), {}));
  return std::make_shared<const ChartView>(
      ChartManager::chartView(std::get<ChartRequest>(read).charts).value());
}

std::shared_ptr<const ChartView> lineView(double limit, const std::vector<ChartPoint>& marked) {
  LineChartData data;
  data.chartTitle = "Title";
  data.dataName = "f";
  data.chartColorHexCode = "#ff0000";
  data.startPoint = {-limit, -limit};
  data.endPoint = {limit, limit};
  data.markedPoints = marked;
  data.axisLimit = limit;
  return std::make_shared<const ChartView>(LineChartManager::lineChartView(data));
}

QImage imageOf(const ChartPicture& picture, const ChartMoment& moment = {}, double scale = 1) {
  QImage image((picture.size() * scale).toSize(), QImage::Format_RGB32);
  image.fill(Qt::yellow);
  QPainter painter(&image);
  painter.scale(scale, scale);
  picture.paint(painter, moment);
  return image;
}

TEST(CoordinateLayout, LetsNoTextTouchAnotherOrTheFrameOrThePlot) {
  for (const char* example : {"sine", "cosine", "tangent", "straight_line", "parabola_and_line",
                              "four_coins_histogram", "two_coins_distribution"}) {
    const auto view = viewOf(example);
    for (const QSizeF& size : sizes) {
      const CoordinateLayout layout(*optionsOf(*view), size);
      std::vector<QRectF> boxes{layout.plot};
      for (const auto* texts : {&layout.xTexts, &layout.yTexts})
        for (const AxisText& text : *texts) boxes.push_back(text.box);
      const auto add = [&](const PlacedText& text) {
        if (!text.text.isEmpty()) boxes.emplace_back(text.place, QFontMetricsF(text.font).size(0, text.text));
      };
      add(layout.title);
      add(layout.xTitle);
      add(layout.yTitle);
      for (const LegendEntry& entry : layout.legend) {
        add(entry.name);
        boxes.back().setLeft(boxes.back().left() - legendSymbolRoom);
      }
      for (std::size_t one = 0; one < boxes.size(); ++one) {
        EXPECT_TRUE(QRectF({}, size).contains(boxes[one])) << example << ' ' << size.width() << ' ' << one;
        for (std::size_t other = 0; other < one; ++other)
          EXPECT_FALSE(boxes[one].intersects(boxes[other]))
              << example << ' ' << size.width() << ' ' << one << ' ' << other;
      }
    }
  }
}

// Pixels between the card and a line through the middle of a chart.
std::set<QRgb> colorsAlong(const QImage& image, int y, int from, int to) {
  std::set<QRgb> colors;
  for (int x = from; x < to; ++x) colors.insert(image.pixel(x, y));
  return colors;
}

TEST(CoordinatePicture, DrawsAxesAndGridOnWholePixels) {
  for (const double scale : {1.0, 1.5, 2.0}) {
    const QSizeF size(371, 309);
    const CoordinateLayout layout(*optionsOf(*lineView(8, {})), size);
    const QImage image = imageOf(ChartPicture(lineView(8, {}), size, ChartPalette::current()), {}, scale);
    // Between two grid lines there is the background, both lines, and nothing half a line.
    const int y = static_cast<int>(scale * (layout.placeY(7)));
    const std::set<QRgb> colors = colorsAlong(image, y, static_cast<int>(scale * layout.placeX(-7)),
                                              static_cast<int>(scale * layout.placeX(5)));
    EXPECT_EQ(colors.size(), 3U) << scale;
    EXPECT_TRUE(colors.contains(QColor(Qt::white).rgb()));
    EXPECT_TRUE(colors.contains(QColor("#8e8e93").rgb()));
  }
}

TEST(CoordinatePicture, FindsThePointThatIsPointedAt) {
  const QSizeF size(400, 400);
  const auto view = lineView(8, {{4, 0}, {-4, 2}, {100, 0}});
  const ChartPicture picture(view, size, ChartPalette::current());
  const CoordinatePicture& chart = *picture.coordinates();
  const CoordinateLayout layout(*optionsOf(*view), size);
  const auto at = [&](double x, double y) { return chart.nearest({layout.placeX(x), layout.placeY(y)}); };
  EXPECT_EQ(at(3, 1), (ChartMark{1, 0}));
  EXPECT_EQ(at(-7, -6), (ChartMark{0, 0}));
  const ChartMark first{1, 0};
  EXPECT_EQ(chart.nextPoint(first, 1), (ChartMark{1, 1}));
  EXPECT_EQ(chart.nextPoint({1, 1}, 1), (ChartMark{1, 1})) << "what is not drawn is passed over";
  EXPECT_EQ(chart.nextPoint(first, -1), first);
  EXPECT_EQ(chart.nextSeries(first, -1), (ChartMark{0, 1}));
  EXPECT_EQ(chart.nextSeries(first, 1), first);
  EXPECT_EQ(tooltipLines(*optionsOf(*view), {0.5, -1}), (QStringList{"x: 0.5", "f: −1"}));

  EXPECT_NE(imageOf(picture, {.mark = first}), imageOf(picture));
  EXPECT_EQ(imageOf(picture, {.mark = ChartMark{1, 2}}), imageOf(picture)) << "no such point is drawn";
  EXPECT_EQ(imageOf(picture, {.mark = ChartMark{9, 9}}), imageOf(picture));
}

// Of any channel of any pixel.
int greatestDifference(const QImage& one, const QImage& other) {
  int greatest = 0;
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) {
      const QColor left = one.pixelColor(x, y);
      const QColor right = other.pixelColor(x, y);
      for (const int difference :
           {left.red() - right.red(), left.green() - right.green(), left.blue() - right.blue()})
        greatest = std::max(greatest, std::abs(difference));
    }
  }
  return greatest;
}

TEST(TreePicture, ShowsThePartThatItIsScrolledTo) {
  BernoulliDistributionTreeChartData data;
  data.probabilityOfSuccess = 0.5;
  data.hits = 3;
  data.trials = 6;
  const auto view = std::make_shared<const ChartView>(TreeChartManager::treeChartView(data));
  const auto& tree = std::get<TreeChartView>(*view);
  const ChartPicture whole(view, {tree.width, tree.height}, ChartPalette::current());
  EXPECT_EQ(whole.contentSize(), whole.size());
  const QImage all = imageOf(whole, {.scroll = QPointF()});
  const ChartPicture part(view, {300, 200}, ChartPalette::current());
  for (const QPoint scroll : {QPoint(0, 0), {500, 200}, {1900, 280}, {1016, 0}}) {
    const QImage seen = imageOf(part, {.scroll = scroll});
    const QRect inner = seen.rect().adjusted(13, 13, -13, -13);  // without the corners of the card
    EXPECT_LE(greatestDifference(seen.copy(inner), all.copy(inner.translated(scroll))), 2) << scroll.x();
  }
  EXPECT_EQ(imageOf(part), imageOf(part, {.scroll = QPointF((tree.width - 300) / 2, 0)}))
      << "opens at its root";
}

TEST(ChartPicture, DrawsEveryExampleInEverySizeLightAndDark) {
  for (const bool isDark : {false, true}) {
    Appearance::shared().force(isDark);
    for (const auto& entry : std::filesystem::directory_iterator(TAVI_CHART_EXAMPLES)) {
      const std::string name = entry.path().stem();
      if (name.ends_with(".expected") || name == "two_lines_share_no_view") continue;
      const auto view = viewOf(name);
      for (const QSizeF& size : sizes) {
        const QImage image = imageOf(ChartPicture(view, size, ChartPalette::current()));
        const QPoint inside(4, image.height() / 2);
        EXPECT_EQ(image.pixelColor(inside), isDark ? Qt::black : Qt::white) << name;
        EXPECT_GT(colorsAlong(image, image.height() / 2, 0, image.width()).size(), 3U) << name << " is empty";
      }
    }
  }
  Appearance::shared().force(false);
}

TEST(ChartPicture, DrawsWhateverNumbersAreDescribed) {
  const double odd[] = {0, -0.0, 1e-320, 1e-9, 1, -7, 1e15, 1e300, -1.7e308, std::nan(""), INFINITY};
  std::vector<ChartPoint> points{{}, {1}, {1, 2, 3}};
  for (const double x : odd)
    for (const double y : odd) points.push_back({x, y});
  const auto draw = [](const ChartView& view) {
    const QImage image =
        imageOf(ChartPicture(std::make_shared<const ChartView>(view), {300, 200}, ChartPalette::current()));
    EXPECT_FALSE(image.isNull());
  };
  for (std::size_t from = 0; from < points.size(); from += 7) {
    const std::vector<ChartPoint> some(points.begin() + static_cast<std::ptrdiff_t>(from), points.end());
    CommonSplineChartData spline;
    spline.dataSet = some;
    draw(SplineChartManager::commonSplineChartView({&spline}));
    HistogramChartData histogram;
    histogram.dataSetWithColorTheme = {{"", some}, {"#zzz", points}};
    draw(AreaChartManager::histogramChartView(histogram));
  }
  for (const double limit : {1e-320, 1e-9, 1.0, 1e15, 1.7e308}) draw(*lineView(limit, points));
  UnitCircleChartData angle(45, INFINITY, {}, 0, Quadrant::first);
  draw(UnitCircleChartManager::unitCircleChartView(angle));
}

}  // namespace
}  // namespace tavi
