#include "shell/launch/window_place.h"

#include <QTest>
#include <array>

#include "platform/preferences.h"
#include "platform/test_support.h"
#include "shell/launch/launch_fixture.h"

namespace tavi {
namespace {

TEST(WindowPlaceTest, IsMovedOntoAScreen) {
  constexpr std::array screens{QRect(0, 24, 1280, 776), QRect(1280, 0, 800, 600)};
  const struct {
    QRect left;
    QRect shown;
  } cases[] = {
      {{100, 100, 412, 600}, {100, 100, 412, 600}},
      {{1000, 100, 400, 600}, {880, 100, 400, 600}},  // most of it on the first screen
      {{1200, 100, 400, 600}, {1280, 0, 400, 600}},   // on the second one, which is lower
      {{-4000, -4000, 412, 600}, {0, 24, 412, 600}},  // a screen that is gone
      {{0, 0, 5000, 5000}, {0, 24, 1280, 776}},
      {{50, 50, 10, 10}, {50, 50, 320, 320}},
  };
  for (const auto& [left, shown] : cases) EXPECT_EQ(onScreen(left, {320, 320}, screens), shown);
  EXPECT_EQ(onScreen({9, 9, 9, 9}, {320, 320}, {}), QRect(9, 9, 9, 9)) << "nothing is known of screens";
}

TEST(WindowPlaceTest, IsStoredAndReadBackUnlessItIsNone) {
  const WindowPlace place{{-10, 20, 1000, 700}, true};
  const QVariantMap written = record(place);
  EXPECT_EQ(windowPlace(written), place);
  for (const auto& [key, value] : std::initializer_list<std::pair<const char*, QVariant>>{
           {"x", {}}, {"y", "20"}, {"width", 0LL}, {"height", -5LL}, {"x", 1LL << 40}}) {
    QVariantMap wrong = written;
    wrong.insert(key, value);
    EXPECT_EQ(windowPlace(wrong), std::nullopt) << key;
  }
}

TEST_F(LaunchTest, TheWindowComesBackWhereItWasLeft) {
  launch();
  const QSize usual = delegate->window()->size();
  delegate->window()->setGeometry(30, 40, 500, 610);
  delegate.reset();
  QCoreApplication::processEvents();
  EXPECT_NE(QSize(500, 610), usual);

  launch();
  EXPECT_EQ(delegate->window()->geometry(), QRect(30, 40, 500, 610));
  delegate->window()->showMaximized();
  EXPECT_TRUE(waitUntil([this] {
    const auto place = windowPlace(preferences.value(preferences::windowPlace));
    return place && place->isMaximized && place->normal == QRect(30, 40, 500, 610);
  })) << "kept while it runs";
  delegate.reset();
  QCoreApplication::processEvents();

  launch();
  EXPECT_TRUE(delegate->window()->windowStates().testFlag(Qt::WindowMaximized));
}

}  // namespace
}  // namespace tavi
