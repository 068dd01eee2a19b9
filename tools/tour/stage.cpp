#include "tour/stage.h"

#include <QTest>

#include <private/qabstractanimation_p.h>

#include "shell/frame/screenshot.h"
#include "solution/share/share_sheet_controller.h"

namespace tavi::tour {

namespace {

constexpr std::chrono::milliseconds patience{8000};

template <typename Predicate>
QQuickItem* find(QQuickItem& root, const Predicate& isWanted) {
  if (!root.isVisible()) return nullptr;
  if (isWanted(root)) return &root;
  for (QQuickItem* child : root.childItems())
    if (QQuickItem* found = find(*child, isWanted)) return found;
  return nullptr;
}

bool isWideFlickable(const QQuickItem& item) {
  return item.inherits("QQuickFlickable") && item.property("contentWidth").toReal() > item.width() + 1;
}

/// A text that the page shortens, or that is wider than its place or the window, or a line higher than its
/// place. What can be scrolled to is not cut.
bool isCutText(const QQuickItem& item) {
  if (!item.inherits("QQuickText") || item.property("text").toString().isEmpty()) return false;
  const double width = item.property("contentWidth").toReal();
  const double height = item.property("contentHeight").toReal();
  const double line = height / std::max(1, item.property("lineCount").toInt());
  if (item.property("truncated").toBool() || width > item.width() + 1 || height > item.height() + line / 2)
    return true;
  for (const QQuickItem* around = &item; around != nullptr; around = around->parentItem())
    if (isWideFlickable(*around)) return false;
  const double middleX = item.mapToScene({item.width() / 2, 0}).x();
  return middleX - width / 2 < -1 || middleX + width / 2 > item.window()->width() + 1;
}

QPoint middle(const QQuickItem& item) {
  return item.mapToScene({item.width() / 2, item.height() / 2}).toPoint();
}

}  // namespace

Stage::Stage(Application& application) : application_(application), finger_(QTest::createTouchDevice()) {
  if (application_.launch()) throw Failure("it runs already");
  bool hasFrame = false;
  const auto counting =
      QObject::connect(&window(), &QQuickWindow::frameSwapped, &window(), [&hasFrame] { hasFrame = true; });
  waitUntil([&hasFrame] { return hasFrame; }, "the first frame");
  QObject::disconnect(counting);
}

void Stage::resize(QSize size) {
  window().resize(size);
  waitUntil([this, size] { return window().contentItem()->size() == size; }, "the window has its new size");
}

QQuickItem* Stage::visibleItem(const QString& name) const {
  QQuickItem* root = application_.delegate().window()->contentItem();
  return find(*root, [&name](const QQuickItem& each) { return each.objectName() == name; });
}

QQuickItem& Stage::item(const QString& name) const {
  QQuickItem* found = visibleItem(name);
  if (found == nullptr) throw Failure("nothing to be seen of " + name.toStdString());
  return *found;
}

void Stage::tap(const QString& name) {
  const QQuickItem& target = item(name);
  if (!target.isEnabled()) throw Failure(name.toStdString() + " is off");
  const QPoint place = middle(target);
  if (!window().contentItem()->contains(place)) throw Failure(name.toStdString() + " is out of sight");
  QTest::touchEvent(&window(), finger_.get()).press(0, place);
  QTest::touchEvent(&window(), finger_.get()).release(0, place);
}

void Stage::type(const QString& field, QStringView keys) {
  tap(field);
  for (const QChar key : keys) tap(QStringLiteral("key ") + key);
  const QString text = item(field).property("text").toString();
  if (text != keys)
    throw Failure(QStringLiteral("typed %1 into %2, which shows %3").arg(keys, field, text).toStdString());
}

void Stage::openInput() {
  if (!shows(QStringLiteral("tab0"))) return;
  tap(QStringLiteral("tab0"));
  waitUntil([this] { return delegate().pageTabBarController()->selectedIndex() == 0; },
            "the input page is open");
}

void Stage::prepare(Mode mode, QStringView first, QStringView second) {
  sendToastsAway();
  openInput();
  tap(QStringLiteral("toolbarRemoveButton"));
  const bool isPower = mode == Mode::power;
  tap(isPower ? QStringLiteral("segment0") : QStringLiteral("segment1"));
  if (!first.isEmpty()) type(isPower ? QStringLiteral("exponentField") : QStringLiteral("indexField"), first);
  if (!second.isEmpty())
    type(isPower ? QStringLiteral("baseField") : QStringLiteral("radicandField"), second);
}

void Stage::solve(Mode mode, QStringView first, QStringView second) {
  prepare(mode, first, second);
  tap(QStringLiteral("key Calculate"));
  waitUntil([this] { return delegate().pageTabBarController()->selectedIndex() == 1; },
            "the solution page is open");
}

void Stage::scrollWideLine() {
  QQuickItem* line = find(*window().contentItem(), isWideFlickable);
  if (line == nullptr) throw Failure("no line is wider than the page");
  const QPoint start = middle(*line);
  QTest::touchEvent(&window(), finger_.get()).press(0, start);
  for (int step = 1; step <= 10; ++step) {
    QTest::qWait(10);
    QTest::touchEvent(&window(), finger_.get()).move(0, start - QPoint(15 * step, 0));
  }
  QTest::touchEvent(&window(), finger_.get()).release(0, start - QPoint(150, 0));
  waitUntil([line] { return !line->property("moving").toBool(); }, "the line comes to rest");
  if (line->property("contentX").toReal() <= 0) throw Failure("the wide line does not scroll");
}

void Stage::clearTheView() {
  delegate().drawer()->dismissPresented();
  delegate().drawer()->closeLeftView();
  waitUntil(
      [this] {
        return delegate().drawer()->presentedController() == nullptr && !shows(QStringLiteral("sideMenu"));
      },
      "nothing lies over the pages");
  picture();
}

void Stage::openHistory() {
  delegate().drawer()->dismissPresented();
  delegate().leftViewController()->didSelectRow(LeftViewController::mainSection, 1);
}

void Stage::share() {
  tap(QStringLiteral("shareButton"));
  waitUntil([this] { return shows(QStringLiteral("alertAction0")); }, "a message says what is coming");
  waitUntil([] { return !isTakingScreenshot; }, "the picture is made");
  tap(QStringLiteral("alertAction0"));
  waitUntil([this] { return !sharedPicture().isNull(); }, "the picture is offered");
}

QImage Stage::sharedPicture() {
  const auto* sheet = qobject_cast<ShareSheetController*>(delegate().drawer()->presentedController());
  return sheet == nullptr ? QImage() : sheet->picture();
}

void waitUntil(const std::function<bool()>& isReached, const std::string& what) {
  if (!QTest::qWaitFor(isReached, static_cast<int>(patience.count()))) throw Failure("not reached: " + what);
}

void Stage::sendToastsAway() {
  if (shows(QStringLiteral("toast"))) tap(QStringLiteral("toast"));
  waitUntil([this] { return !shows(QStringLiteral("toast")); }, "the toast is gone");
}

void Stage::expectNothingCut() {
  if (const QQuickItem* cut = find(*window().contentItem(), isCutText))
    throw Failure("cut: " + cut->property("text").toString().toStdString());
}

QImage Stage::picture() {
  constexpr int longestAnimation = 250;
  constexpr int haste = 5;
  QUnifiedTimer::instance()->setSlowdownFactor(1.0 / haste);
  QUnifiedTimer::instance()->setSlowModeEnabled(true);
  QTest::qWait((longestAnimation + 100) / haste);
  // A busy machine begins them late. What never rests, such as the spinner, is waited for no longer.
  (void)QTest::qWaitFor([] { return QUnifiedTimer::instance()->runningAnimationCount() == 0; }, 150);
  QUnifiedTimer::instance()->setSlowModeEnabled(false);
  QImage image = window().grabWindow();
  if (image.isNull()) throw Failure("the window gives no picture");
  return image;
}

}  // namespace tavi::tour
