// Input and working in a wide window.
#include <QTest>

#include "platform/test_support.h"
#include "shell/launch/command_line.h"
#include "shell/launch/launch_fixture.h"

namespace tavi {
namespace {

class SideBySideTest : public LaunchTest {
 protected:
  SideBySideTest() {
    for (const char* done : {"isOnboardingFinished", "isDsgvoAccepted", "isRatingAlreadyDone"})
      preferences.setValue(done, true);
    launch();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window()));
  }

  QQuickWindow* window() { return delegate->window(); }
  AppPageTabBarController& tabs() { return *delegate->pageTabBarController(); }
  CalculateViewController& input() { return *delegate->calculateViewController(); }
  SolutionViewController& working() { return *delegate->solutionViewController(); }

  void resize(int width, int height) {
    window()->resize(width, height);
    EXPECT_TRUE(waitUntil([&] { return delegate->drawer()->view()->size() == QSizeF(width, height); }));
  }

  bool isSeen(ViewController& page) { return page.view()->window() == window() && page.isAppearing(); }
  QRectF place(ViewController& page) { return page.view()->mapRectToScene(page.view()->boundingRect()); }

  void solve() {
    input().xTextField.front()->forceActiveFocus();
    for (const auto key : {Qt::Key_1, Qt::Key_2}) QTest::keyClick(window(), key, {}, 0);
    input().aTextField.front()->setText("2");
    input().aTextField.back()->setText("2");
    QTest::keyClick(window(), Qt::Key_Return);
  }
};

TEST_F(SideBySideTest, BothPagesStandInAWideWindowAndNothingIsLeftOfThatInANarrowOne) {
  const struct {
    QSize size;
    bool isSideBySide;
  } sizes[] = {{{999, 700}, false},  {{1000, 700}, true},  {{1280, 800}, true},
               {{1280, 500}, false}, {{1920, 1080}, true}, {{412, 870}, false}};
  for (const auto& [size, isSideBySide] : sizes) {
    resize(size.width(), size.height());
    EXPECT_EQ(tabs().isSideBySide(), isSideBySide) << size.width();
    EXPECT_TRUE(isSeen(input()));
    EXPECT_EQ(isSeen(working()), isSideBySide);
    if (!isSideBySide) {
      EXPECT_EQ(place(input()).width(), size.width());
      continue;
    }
    EXPECT_GE(place(input()).width(), 400);
    EXPECT_EQ(place(input()).right(), place(working()).left());
    EXPECT_LE(place(working()).right() - place(input()).left(), 1200);
    EXPECT_NEAR(place(input()).left(), size.width() - place(working()).right(), 1) << "centred";
    EXPECT_EQ(place(input()).bottom(), size.height());
  }
}

TEST_F(SideBySideTest, TheKeyboardStaysWithTheInputAndEscapeLeadsBackToIt) {
  resize(1280, 800);
  solve();
  EXPECT_EQ(working().solutionSteps().empty(), false);
  EXPECT_FALSE(working().isShareButtonHidden());
  EXPECT_EQ(input().xTextField.front()->text(), "12");
  EXPECT_TRUE(input().view()->hasActiveFocus()) << "the pupil goes on typing";

  auto* table = working().view()->findChild<QQuickItem*>("solutionTable");
  for (int i = 0; i < 20 && !table->hasActiveFocus(); ++i) QTest::keyClick(window(), Qt::Key_Tab);
  ASSERT_TRUE(table->hasActiveFocus());
  EXPECT_EQ(tabs().selectedIndex(), 1);
  QTest::keyClick(window(), Qt::Key_Escape);
  EXPECT_TRUE(input().view()->hasActiveFocus());
  EXPECT_TRUE(isSeen(working()));
}

TEST_F(SideBySideTest, WhatHasTheKeyboardStaysWhenTheRoomGoesAndComes) {
  solve();
  EXPECT_EQ(tabs().selectedIndex(), 1);
  resize(1280, 800);
  auto* table = working().view()->findChild<QQuickItem*>("solutionTable");
  EXPECT_TRUE(table->hasActiveFocus());
  resize(412, 870);
  EXPECT_TRUE(isSeen(working()));
  EXPECT_FALSE(isSeen(input()));
  QTest::keyClick(window(), Qt::Key_Escape);
  EXPECT_TRUE(isSeen(input()));
  QTest::keyClick(window(), Qt::Key_Escape);
  EXPECT_TRUE(window()->isVisible()) << "never out of the application";

  resize(1280, 800);
  input().xTextField.front()->forceActiveFocus();
  resize(412, 870);
  EXPECT_TRUE(isSeen(input()));
  EXPECT_TRUE(input().xTextField.front()->isFirstResponder());
}

TEST_F(SideBySideTest, APageThatTheMenuOpensByKeyHasTheKeyboard) {
  const auto focus = [this] {
    const QQuickItem* item = window()->activeFocusItem();
    return item != nullptr ? item->objectName() : QString();
  };
  for (const QSize size : {QSize(1280, 800), QSize(412, 870)}) {
    resize(size.width(), size.height());
    for (int i = 0; i < 40 && focus() != "menuButton"; ++i) QTest::keyClick(window(), Qt::Key_Tab);
    QTest::keyClick(window(), Qt::Key_Return);
    ASSERT_TRUE(waitUntil([&] { return focus().startsWith("menuRow"); })) << qPrintable(focus());
    for (int i = 0; i < 3 && focus() != "menuRow 0 1"; ++i) QTest::keyClick(window(), Qt::Key_Tab);
    QTest::keyClick(window(), Qt::Key_Return);
    EXPECT_TRUE(waitUntil([&] { return focus() == "menuButton"; })) << qPrintable(focus());
  }
}

}  // namespace
}  // namespace tavi
