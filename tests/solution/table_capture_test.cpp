#include "solution/share/table_capture.h"

#include <QElapsedTimer>
#include <QPainter>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <gtest/gtest.h>

#include "appearance/interface_colors.h"
#include "solution/rows/solution_table_data.h"

namespace tavi {
namespace {

constexpr int margin = 0;
constexpr int scale = 2;

/// Runs the events until the picture is there.
QImage pictureOf(QCoro::Task<QImage> task) {
  QImage picture;
  bool isDone = false;
  std::move(task).then([&](const QImage& image) {
    picture = image;
    isDone = true;
  });
  EXPECT_TRUE(QTest::qWaitFor([&isDone] { return isDone; }, 30'000));
  return picture;
}

/// A row of one colour.
class ColoredRow : public RowPainter {
 public:
  ColoredRow(const QColor& color, double height, std::chrono::milliseconds settling = {})
      : color_(color), height_(height), settling_(settling) {}

  double height(double) const override { return height_; }
  void paint(QPainter& painter, QSizeF size, const RowPalette&) const override {
    EXPECT_NE(QThread::currentThread(), qApp->thread()) << "the interface waits for it";
    painter.fillRect(QRectF({}, size), color_);
  }
  std::chrono::milliseconds settlingTime() const override { return settling_; }

 private:
  QColor color_;
  double height_;
  std::chrono::milliseconds settling_;
};

RowSource row(const QColor& color, double height, std::chrono::milliseconds settling = {}) {
  return [=] { return std::make_shared<ColoredRow>(color, height, settling); };
}

SectionEdge edge(const QColor& color) {
  return {{100, 10}, std::make_shared<ColoredRow>(color, 10)};
}

/// Two sections: rows under a green header; under a blank header a row, one that is gone and one without
/// height, and a footer in blue.
PicturedTable smallTable() {
  PicturedTable table;
  table.width = 100;
  table.sections.resize(2);
  table.sections[0].header = edge(Qt::green);
  table.sections[0].rows = {row(Qt::red, 20), row(Qt::darkRed, 30)};
  table.sections[1].header.size = {100, 10};
  table.sections[1].rows = {row(Qt::cyan, 20), [] { return nullptr; }, row(Qt::magenta, 0)};
  table.sections[1].footer = edge(Qt::blue);
  return table;
}

struct Stripe {
  QColor color;
  int height = 0;
  bool operator==(const Stripe&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Stripe& stripe) {
  return out << stripe.color.name().toStdString() << ' ' << stripe.height;
}

/// The runs of one colour down the middle of the picture.
std::vector<Stripe> stripes(const QImage& picture) {
  std::vector<Stripe> found;
  for (int y = 0; y < picture.height(); ++y) {
    const QColor color = picture.pixelColor(picture.width() / 2, y);
    if (found.empty() || found.back().color != color) found.push_back({color, 0});
    ++found.back().height;
  }
  return found;
}

TEST(TableCaptureTest, StacksHeadersRowsAndFootersInTheirOrder) {
  const Stripe rows[] = {{Qt::red, 40}, {Qt::darkRed, 60}};
  const Stripe blank{InterfaceColor::page(), 20};
  const Stripe third{Qt::cyan, 40};
  const Stripe header{Qt::green, 20};
  const Stripe footer{Qt::blue, 20};
  struct Case {
    bool hasTableHeader;
    std::optional<std::set<int>> headers;
    std::optional<std::set<int>> footers;
    std::vector<Stripe> expected;
  };
  const Case cases[] = {
      {false, {}, {}, {header, rows[0], rows[1], blank, third, footer}},
      {true, {}, {}, {{Qt::yellow, 20}, header, rows[0], rows[1], blank, third, footer}},
      {false, std::set<int>{}, std::set<int>{0}, {rows[0], rows[1], third}},
      {false, std::set<int>{1}, {}, {rows[0], rows[1], blank, third, footer}},
  };
  for (const auto& [hasTableHeader, headers, footers, expected] : cases) {
    PicturedTable table = smallTable();
    if (hasTableHeader) table.tableHeader = edge(Qt::yellow);
    const QImage picture = pictureOf(tableViewScreenshot(table, {headers, footers, margin}));
    EXPECT_EQ(picture.width(), 100 * scale);
    EXPECT_EQ(stripes(picture), expected);
  }
}

TEST(TableCaptureTest, GivesEachRowItsTimeAndTheInterfaceItsEvents) {
  PicturedTable table;
  table.width = 100;
  table.sections.resize(1);
  table.sections[0].rows = {row(Qt::red, 20, std::chrono::milliseconds(200))};
  int ticks = 0;
  QTimer ticking;
  QObject::connect(&ticking, &QTimer::timeout, [&ticks] { ++ticks; });
  ticking.start(10);
  QElapsedTimer timer;
  timer.start();
  pictureOf(tableViewScreenshot(table));
  EXPECT_GE(timer.elapsed(), 200);
  EXPECT_GE(ticks, 1);
}

TEST(TableCaptureTest, OfAnEmptyTableThereIsNothing) {
  EXPECT_TRUE(pictureOf(tableViewScreenshot({})).isNull());
}

TEST(MergedImageTest, StacksPiecesAtTheLeftOnATransparentGround) {
  QImage wide(30, 10, QImage::Format_RGB32);
  QImage narrow(10, 20, QImage::Format_RGB32);
  wide.fill(Qt::red);
  narrow.fill(Qt::blue);
  const QImage merged = mergedImage({narrow, wide});
  EXPECT_EQ(merged.size(), QSize(30, 30));
  EXPECT_EQ(merged.pixelColor(9, 19), QColor(Qt::blue));
  EXPECT_EQ(merged.pixelColor(10, 19).alpha(), 0);
  EXPECT_EQ(merged.pixelColor(29, 20), QColor(Qt::red));
  EXPECT_EQ(mergedImage({}).size(), QSize(0, 0));
  const QImage frame = framed(merged, 5, Qt::green);
  EXPECT_EQ(frame.size(), QSize(40, 40));
  EXPECT_EQ(frame.pixelColor(4, 4), QColor(Qt::green));
  EXPECT_EQ(frame.pixelColor(20, 10), QColor(Qt::green));
  EXPECT_EQ(frame.pixelColor(5, 5), QColor(Qt::blue));
}

SolutionTableData solution(SolutionSteps steps) {
  SolutionTableData data;
  data.solutionSteps = std::move(steps);
  data.rowHeight = 100;
  return data;
}

QImage pictureOf(const SolutionTableData& data) {
  PicturedTable table;
  table.width = 396;
  table.sections.resize(1);
  for (const SolutionRow& each : data.rows())
    table.sections.front().rows.emplace_back([each] { return makePainter(each, {.viewWidth = 412}); });
  return pictureOf(tableViewScreenshot(table));
}

SolutionStep formula(std::string title, std::string latex) {
  return {.title = std::move(title), .latexString = std::move(latex), .messageString = std::nullopt};
}

std::string factors(int count, const std::string& last) {
  std::string latex;
  for (int i = 1; i < count; ++i) latex += "\\left( 12 \\right) ";
  return latex + "\\left( " + last + " \\right)";
}

/// How many pixels of the rectangle are darker than a medium gray.
int inkIn(const QImage& picture, const QRect& rectangle) {
  int ink = 0;
  for (int y = rectangle.top(); y <= rectangle.bottom(); ++y)
    for (int x = rectangle.left(); x <= rectangle.right(); ++x)
      if (picture.pixelColor(x, y).lightness() < 128) ++ink;
  return ink;
}

TEST(SolutionPictureTest, ShowsAWideFormulaToItsEnd) {
  const auto picture = [](const std::string& last) {
    return pictureOf(solution({formula("Your Input", "12"), formula("Result", factors(60, last))}));
  };
  const QImage narrow = picture("1");
  const QImage wide = picture("888");
  EXPECT_GT(narrow.width(), 4 * 412);
  EXPECT_GT(wide.width(), narrow.width());
  EXPECT_EQ(wide.height(), narrow.height());
  // The last factor and its parenthesis stand where the edge and the margin begin.
  for (const QImage& each : {narrow, wide}) {
    const int end = each.width() - (16 + 16) * scale;
    const QRect lastFactor(end - 30 * scale, each.height() / 2, 30 * scale, each.height() / 2);
    const QRect beyond(end + 1, each.height() / 2, 16 * scale - 2, each.height() / 2);
    EXPECT_GT(inkIn(each, lastFactor), 50);
    EXPECT_EQ(inkIn(each, beyond), 0);
  }
}

TEST(SolutionPictureTest, RowsAreCardsOnThePageAsHighAsTheirRows) {
  const QImage picture = pictureOf(solution({formula("Your Input", "2^{3}"), formula("", "=8")}));
  EXPECT_EQ(picture.size(), QSize(396 + 32, 200 + 32) * scale);
  EXPECT_EQ(picture.pixelColor(3, 3), InterfaceColor::page());
  EXPECT_EQ(picture.pixelColor(34, 34), InterfaceColor::page()) << "the card is rounded";
  EXPECT_EQ(picture.pixelColor(picture.width() / 2, 40), InterfaceColor::background());
}

TEST(SolutionPictureTest, StaysWithinWhatViewersOpen) {
  struct Case {
    const char* name;
    SolutionSteps steps;
    double leastScale;
  };
  const Case cases[] = {
      {"300 rows", SolutionSteps(300, formula("Step", "=\\frac{1}{2}")), 0.5},
      {"10,000 factors", {formula("Result", factors(10'000, "12"))}, 1},
      {"one fraction that cannot be parted", {formula("", "\\frac{" + factors(2'000, "12") + "}{2}")}, 1}};
  for (const auto& [name, steps, leastScale] : cases) {
    const QImage picture = pictureOf(solution(steps));
    EXPECT_LE(picture.width(), largestPictureSide) << name;
    EXPECT_LE(picture.height(), largestPictureSide) << name;
    EXPECT_LE(picture.sizeInBytes(), qsizetype{64'000'000}) << name;
    EXPECT_GT(picture.width(), leastScale * 412) << name;
  }
}

TEST(SolutionPictureTest, AScaleIsOnlyEverLowered) {
  EXPECT_EQ(pictureScale({400, 1000}, 3), 3);
  EXPECT_EQ(pictureScale({400, 16'384}, 3), 1);
  EXPECT_EQ(pictureScale({8192, 100}, 3), 2);
  EXPECT_LT(pictureScale({8192, 8192}, 2), 1);
}

}  // namespace
}  // namespace tavi
