#include "solution/table_capture.h"

#include <QElapsedTimer>
#include <QQuickWindow>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include "appearance/interface_colors.h"
#include "solution/chart_table_view_cell.h"
#include "solution/solution_table_source.h"

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

/// A cell of one colour, or one that has no picture.
class ColoredCell : public TableViewCell {
 public:
  explicit ColoredCell(const QColor& color) : color_(color) {}

  QCoro::Task<QImage> screenshot(double pixels) override {
    QImage image((size() * pixels).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(color_);
    co_return color_.isValid() ? image : QImage();
  }

 private:
  QColor color_;
};

QQuickItem* colored(QQuickItem* parent, QSizeF size, const QColor& color) {
  auto* cell = new TableViewCell(parent);
  cell->setSize(size);
  cell->setBackgroundColor(color);
  return cell;
}

/// Two sections with headers and footers: a header in green, a blank header, rows, a footer in blue.
class SmallTable : public TableDataSource {
 public:
  SmallTable() {
    window.resize(200, 200);
    tableHeader_.reset(colored(window.contentItem(), {100, 10}, Qt::yellow));
    header_.reset(colored(window.contentItem(), {100, 10}, Qt::green));
    footer_.reset(colored(window.contentItem(), {100, 10}, Qt::blue));
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
  }

  double width() const override { return 100; }
  QQuickItem* cellParent() const override { return window.contentItem(); }
  QQuickItem* tableHeaderView() const override { return hasTableHeader ? tableHeader_.get() : nullptr; }
  SectionEdge header(int section) const override {
    if (section == 0) return {{100, 10}, header_.get()};
    return {{100, 10}, nullptr};
  }
  SectionEdge footer(int section) const override {
    return section == 0 ? SectionEdge{} : SectionEdge{{100, 10}, footer_.get()};
  }
  int numberOfSections() const override { return 2; }
  int numberOfRows(int section) const override { return section == 0 ? 2 : 3; }
  double heightForRow(int, int row) const override { return row == 0 ? 20 : 30; }
  std::unique_ptr<TableViewCell> cellForRow(int section, int row) const override {
    if (section == 0) return std::make_unique<ColoredCell>(row == 0 ? Qt::red : Qt::darkRed);
    if (row == 0) return std::make_unique<ChartTableViewCell>();
    if (row == 1) return nullptr;
    return std::make_unique<ColoredCell>(QColor());
  }

  mutable QQuickWindow window;
  bool hasTableHeader = false;

 private:
  std::unique_ptr<QQuickItem> tableHeader_;
  std::unique_ptr<QQuickItem> header_;
  std::unique_ptr<QQuickItem> footer_;
};

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
  const auto table = std::make_shared<SmallTable>();
  const Stripe rows[] = {{Qt::red, 40}, {Qt::darkRed, 60}};
  const Stripe blank{InterfaceColor::page(), 20};
  // The chart has the system's background; a row without a cell and one without a picture are left out.
  const Stripe chart{InterfaceColor::background(), 40};
  const Stripe header{Qt::green, 20};
  const Stripe footer{Qt::blue, 20};
  struct Case {
    bool hasTableHeader;
    std::optional<std::set<int>> headers;
    std::optional<std::set<int>> footers;
    std::vector<Stripe> expected;
  };
  const Case cases[] = {
      {false, {}, {}, {header, rows[0], rows[1], blank, chart, footer}},
      {true, {}, {}, {{Qt::yellow, 20}, header, rows[0], rows[1], blank, chart, footer}},
      {false, std::set<int>{}, std::set<int>{0}, {rows[0], rows[1], chart}},
      {false, std::set<int>{1}, {}, {rows[0], rows[1], blank, chart, footer}},
  };
  for (const auto& [hasTableHeader, headers, footers, expected] : cases) {
    table->hasTableHeader = hasTableHeader;
    const QImage picture =
        pictureOf(tableViewScreenshot(table, {headers, footers, std::chrono::milliseconds(1), margin}));
    EXPECT_EQ(picture.width(), 100 * scale);
    EXPECT_EQ(stripes(picture), expected);
  }
}

TEST(TableCaptureTest, GivesEachChartItsTimeAndTheInterfaceItsEvents) {
  const auto table = std::make_shared<SmallTable>();
  int ticks = 0;
  QTimer ticking;
  QObject::connect(&ticking, &QTimer::timeout, [&ticks] { ++ticks; });
  ticking.start(10);
  QElapsedTimer timer;
  timer.start();
  pictureOf(tableViewScreenshot(table, {{}, {}, std::chrono::milliseconds(200), margin}));
  EXPECT_GE(timer.elapsed(), 200);
  EXPECT_GE(ticks, 10);
}

TEST(TableCaptureTest, OfAnEmptyTableThereIsNothing) {
  EXPECT_TRUE(pictureOf(tableViewScreenshot(
                            std::make_shared<SolutionTableSource>(SolutionTableData{}, 412, 396, nullptr)))
                  .isNull());
}

SolutionTableData solution(SolutionSteps steps) {
  SolutionTableData data;
  data.solutionSteps = std::move(steps);
  data.rowHeight = 100;
  return data;
}

QImage pictureOf(const SolutionTableData& data) {
  return pictureOf(tableViewScreenshot(std::make_shared<SolutionTableSource>(data, 412, 396, nullptr)));
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
