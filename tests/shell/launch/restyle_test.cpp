// What is on the screen while the appearance changes.
#include <QTest>
#include <algorithm>
#include <cstdlib>

#include "appearance/appearance.h"
#include "appearance/contrast.h"
#include "shell/frame/alert_controller.h"
#include "shell/launch/launch_fixture.h"

namespace tavi {
namespace {

/// How far two pictures of one size are apart in the channel that differs most; a veil that has just come to
/// rest may be a shade off.
int furthest(const QImage& one, const QImage& other) {
  int most = 0;
  for (int y = 0; y < one.height(); ++y)
    for (int x = 0; x < one.width(); ++x) {
      const QRgb a = one.pixel(x, y);
      const QRgb b = other.pixel(x, y);
      most = std::max({most, std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                       std::abs(qBlue(a) - qBlue(b))});
    }
  return most;
}

class RestyleTest : public LaunchTest {
 protected:
  RestyleTest() {
    for (const char* done : {"isOnboardingFinished", "isDsgvoAccepted", "isRatingAlreadyDone"})
      preferences.setValue(done, true);
  }
  ~RestyleTest() override { Appearance::shared().force(std::nullopt); }

  /// Goes where this screen is: types so that a field goes off, opens the menu, asks.
  void goTo(const QString& screen) {
    CalculateViewController& page = openCalculatePage();
    page.currentTextField = page.xTextField.front();
    page.currentTextField->setText("7");
    page.aTextField.front()->setText(screen == "input" ? "" : "2");
    if (screen == "solution") page.performCalculation();
    if (screen == "menu") {
      delegate->drawer()->setLeftViewOpened(true);
      const QQuickItem* menu = delegate->drawer()->leftController()->view();
      EXPECT_TRUE(QTest::qWaitFor([menu] { return menu->isVisible() && menu->mapToScene({}).x() == 0; }));
    }
    if (screen == "alert") delegate->drawer()->presentAlert("Title", "Message", {}, AlertStyle::alert);
    if (screen == "history")
      delegate->appToolbarController()->transition(delegate->makeHistoryTableViewController());
  }

  /// The window once nothing moves in it any more.
  QImage picture() {
    QImage last;
    for (int same = 0; same < 4;) {
      QTest::qWait(50);
      const QImage now = delegate->window()->grabWindow();
      same = now == last ? same + 1 : 0;
      last = now;
    }
    return last;
  }
};

TEST_F(RestyleTest, EveryScreenLooksAsIfItHadComeUpInTheNewAppearance) {
  for (const char* screen : {"input", "solution", "menu", "alert", "history"}) {
    Appearance::shared().force(false);
    launch();
    goTo(screen);
    const QImage fresh = picture();
    delegate.reset();
    QCoreApplication::processEvents();

    Appearance::shared().force(true);
    launch();
    goTo(screen);
    const QImage dark = picture();
    Appearance::shared().force(false);
    EXPECT_LE(furthest(picture(), fresh), 2) << screen;
    EXPECT_GT(furthest(dark, fresh), 50) << screen;
    delegate.reset();
    QCoreApplication::processEvents();
  }
}

TEST_F(RestyleTest, TypedDigitsCanBeReadAfterTheChange) {
  Appearance::shared().force(false);
  launch();
  goTo("input");
  Appearance::shared().force(true);
  const QImage image = picture();
  const DTTextField& field = *openCalculatePage().xTextField.front();
  const QPointF corner = field.mapToScene({8, 8});
  const QColor ground = image.pixelColor(corner.toPoint());
  double best = 1;
  for (int y = 8; y < field.height() - 8; ++y)
    for (int x = 8; x < 40; ++x)
      best =
          std::max(best, contrastRatio(image.pixelColor((corner + QPointF(x - 8, y - 8)).toPoint()), ground));
  EXPECT_GT(best, 4.5) << "on " << ground.name().toStdString();
}

}  // namespace
}  // namespace tavi
