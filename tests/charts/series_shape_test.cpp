#include "charts/view/series_shape.h"

#include <cmath>
#include <random>

#include <gtest/gtest.h>

namespace tavi {
namespace {

using Points = std::vector<QPointF>;

TEST(SeriesShape, KeepsWhatAColumnOfPixelsShows) {
  std::mt19937 random(1);
  std::uniform_real_distribution<double> height(0, 100);
  Points points;
  for (int index = 0; index < 10000; ++index) points.emplace_back(index * 0.001, height(random));
  points[7654].setY(200);
  points[1234].setY(-200);
  const Points kept = thinned(points, 2);
  EXPECT_LE(kept.size(), 4 * 21U);
  EXPECT_EQ(kept.front(), points.front());
  EXPECT_EQ(kept.back(), points.back());
  EXPECT_EQ(std::ranges::count(kept, points[7654]), 1);
  EXPECT_EQ(std::ranges::count(kept, points[1234]), 1);
  EXPECT_TRUE(std::ranges::is_sorted(kept, {}, &QPointF::x));

  const Points few{{0, 1}, {3, 1}, {1, 5}};
  EXPECT_EQ(thinned(few, 2), few) << "also where x does not rise";
}

TEST(SeriesShape, KeepsOneDotOfAPixel) {
  EXPECT_EQ(distinct(Points{{0.1, 0.1}, {0.4, 0.2}, {0.6, 0.1}, {-0.1, 0.1}, {0.2, 0.1}}, 2),
            (Points{{0.1, 0.1}, {0.6, 0.1}, {-0.1, 0.1}}));
}

TEST(SeriesShape, HoldsAStepUpToTheNextPoint) {
  EXPECT_EQ(stepped(Points{{0, 1}, {2, 5}}), (Points{{0, 1}, {2, 1}, {2, 5}}));
}

// With parabolas as its pieces a curve is the parabola through its points.
TEST(SeriesShape, DrawsAParabolaAsOne) {
  Points points;
  for (const double x : {-3.0, -2.5, -1.0, 0.0, 2.0, 2.5}) points.emplace_back(x, x * x);
  const QPainterPath path = curve(points);
  for (double part = 0; part <= 1; part += 0.01) {
    const QPointF point = path.pointAtPercent(part);
    EXPECT_NEAR(point.y(), point.x() * point.x(), 1e-3);
  }
  EXPECT_EQ(curve(Points{{0, 0}, {1, 1}, {1, 2}}).currentPosition(), QPointF(1, 2)) << "upright";
  EXPECT_TRUE(curve({}).isEmpty());
}

TEST(SeriesShape, ClipsALineHoweverFarItReaches) {
  const QRectF frame(0, 0, 10, 10);
  const auto parts = clipped(Points{{-1e12, -1e12}, {1e12, 1e12}, {1e12, -1e12}, {5, 5}}, frame);
  ASSERT_EQ(parts.size(), 2);
  EXPECT_NEAR(parts[0].front().x(), 0, 1e-3);
  EXPECT_NEAR(parts[0].back().y(), 10, 1e-3);
  EXPECT_EQ(parts[1].back(), QPointF(5, 5));
  EXPECT_EQ(clipped(Points{{1, 1}, {2, 2}, {3, 1}}, frame).size(), 1) << "in one piece";
  EXPECT_TRUE(clipped(Points{{-1, 5}, {-1, 7}, {-2, 20}}, frame).isEmpty());
}

}  // namespace
}  // namespace tavi
