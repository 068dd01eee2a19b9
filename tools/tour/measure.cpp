#include "tour/measure.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <array>
#include <cstdio>
#include <ctime>
#include <functional>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/preferences.h"
#include "shell/calc_manager.h"
#include "shell/calculate_view_controller.h"
#include "tour/stage.h"

namespace tavi::tour {

namespace {

double processorMilliseconds() {
  return 1000.0 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

double milliseconds(const QElapsedTimer& timer) {
  return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

void tell(const std::string& name, double figure) {
  std::printf("%s=%.2f\n", name.c_str(), figure);
  std::fflush(stdout);
}

/// A line of this process's status, such as "VmRSS" or, for its peak, "VmHWM".
double statusMegabytes(const char* name) {
  QFile file(QStringLiteral("/proc/self/status"));
  if (!file.open(QIODevice::ReadOnly)) return 0;
  for (const QByteArray& line : file.readAll().split('\n'))
    if (line.startsWith(name)) return line.simplified().split(' ').value(1).toDouble() * 1024 / 1e6;
  return 0;
}

/// The value that so many percent of the values do not exceed.
double percentile(std::vector<double> values, std::size_t percent) {
  std::ranges::sort(values);
  return values.at((values.size() - 1) * percent / 100);
}

struct Task {
  Mode mode;
  QString first;   ///< Exponent or index.
  QString second;  ///< Base or radicand.
};

/// The tasks of the worked examples, which stand in headings such as "## power `2/3` `8`".
std::vector<Task> workedExamples() {
  QFile file(QStringLiteral(TAVI_WORKED_EXAMPLES));
  if (!file.open(QIODevice::ReadOnly)) throw Failure("cannot read " TAVI_WORKED_EXAMPLES);
  std::vector<Task> tasks;
  while (!file.atEnd()) {
    const QStringList parts = QString::fromUtf8(file.readLine()).split(u'`');
    if (parts.size() != 5 || !parts.front().startsWith(u"## ")) continue;
    const bool isTypable = parts[1].lastIndexOf(u'-') < 1 && parts[3].lastIndexOf(u'-') < 1;
    if (!isTypable) continue;  // The keypad keeps the sign in front.
    tasks.push_back({parts.front() == u"## root " ? Mode::root : Mode::power, parts[1], parts[3]});
  }
  return tasks;
}

/// Milliseconds from an action to the end of the first frame at which the state is reached.
double timeToFrame(Stage& stage, const std::function<void()>& act, const std::function<bool()>& isReached) {
  QElapsedTimer timer;
  std::optional<double> time;
  const auto connection =
      QObject::connect(&stage.window(), &QQuickWindow::frameSwapped, &stage.window(), [&] {
        if (!time && isReached()) time = milliseconds(timer);
      });
  timer.start();
  act();
  waitUntil([&time] { return time.has_value(); }, "a frame with what was asked for");
  QObject::disconnect(connection);
  return *time;
}

double timeToSolution(Stage& stage, const Task& task) {
  stage.prepare(task.mode, task.first, task.second);
  return timeToFrame(
      stage, [&stage] { stage.tap(QStringLiteral("key Calculate")); },
      [&stage] { return stage.delegate().pageTabBarController()->selectedIndex() == 1; });
}

/// Milliseconds from each key of a task to the frame with its field.
void timeKeys(Stage& stage, const Task& task, std::vector<double>& times) {
  stage.prepare(task.mode, task.first, u"");
  const QString field =
      task.mode == Mode::power ? QStringLiteral("baseField") : QStringLiteral("radicandField");
  stage.tap(field);
  stage.picture();
  const QQuickItem& item = stage.item(field);
  for (const QChar title : task.second) {
    const qsizetype before = item.property("text").toString().size();
    times.push_back(timeToFrame(
        stage, [&] { stage.tap(QStringLiteral("key ") + title); },
        [&] { return item.property("text").toString().size() > before; }));
  }
}

/// The most processor time that a frame takes while something moves, with all that goes before it.
double longestFrame(Stage& stage, const std::function<void()>& act) {
  stage.picture();
  double longest = 0;
  double last = processorMilliseconds();
  const auto connection =
      QObject::connect(&stage.window(), &QQuickWindow::frameSwapped, &stage.window(), [&] {
        longest = std::max(longest, processorMilliseconds() - std::exchange(last, processorMilliseconds()));
      });
  act();
  stage.picture();
  QObject::disconnect(connection);
  return longest;
}

/// Draws a long history upwards by nearly a row for each frame.
double longestFrameOfScrolling(Stage& stage) {
  constexpr int frames = 200;
  constexpr double way = 60;
  stage.openHistory();
  stage.picture();
  QQuickItem& table = stage.item(QStringLiteral("historyTable"));
  if (table.property("contentHeight").toDouble() < frames * way + table.height()) return 0;
  return longestFrame(stage, [&] {
    int shown = 0;
    const auto connection =
        QObject::connect(&stage.window(), &QQuickWindow::frameSwapped, &stage.window(), [&] {
          ++shown;
          table.setProperty("contentY", table.property("contentY").toDouble() + way);
        });
    stage.window().update();
    waitUntil([&shown] { return shown > frames; }, "the history scrolls");
    QObject::disconnect(connection);
  });
}

/// Shares a working and tells what that took.
void share(Stage& stage, const SolutionSteps& steps, const std::string& name) {
  stage.delegate().pageTabBarController()->select(0);
  SolutionViewController::showSolution(stage.delegate().pageTabBarController().get(), steps, ChartRows{},
                                       std::nullopt, std::nullopt, 100);
  stage.picture();
  const double before = statusMegabytes("VmRSS");
  QElapsedTimer sinceTick;
  double longest = 0;
  QTimer ticking;
  QObject::connect(&ticking, &QTimer::timeout, &ticking, [&] {
    longest = std::max(longest, milliseconds(sinceTick));
    sinceTick.start();
  });
  QElapsedTimer timer;
  timer.start();
  sinceTick.start();
  ticking.start(0);
  stage.share();
  tell(name, milliseconds(timer));
  tell(name + " block", longest);
  tell(name + " memory", statusMegabytes("VmHWM") - before);
  stage.picture();  // once the sheet has risen
  stage.tap(QStringLiteral("closeSheet"));
  waitUntil([&stage] { return stage.sharedPicture().isNull(); }, "the sheet is closed");
}

void measureUse(Stage& stage) {
  std::vector<double> solutions;
  std::vector<double> keys;
  for (const Task& task : workedExamples()) {
    solutions.push_back(timeToSolution(stage, task));
    timeKeys(stage, task, keys);
  }
  tell("solution", percentile(solutions, 50));
  tell("slow solution", percentile(solutions, 95));
  tell("key", percentile(keys, 50));
  tell("slow key", percentile(keys, 95));
  tell("memory", statusMegabytes("VmRSS"));

  std::vector<double> additions;
  for (int i = 0; i < 20; ++i) {
    QElapsedTimer timer;
    timer.start();
    CalcManager::shared().addCalculation(CalcManager::shared().calculation(0));
    additions.push_back(milliseconds(timer));
  }
  tell("adding", percentile(additions, 50));
}

void measureSharing(Stage& stage) {
  const auto step = [](std::string latex) {
    return SolutionStep{.title = "Step", .latexString = std::move(latex), .messageString = std::nullopt};
  };
  share(stage, SolutionSteps(300, step("=\\left( \\frac{2}{3} \\right)^{-2} \\approx 2.25")), "300 rows");
  std::string factors;
  for (int i = 0; i < 10'000; ++i) factors += "\\left( 12 \\right) ";
  share(stage, {step(factors)}, "10,000 factors");
}

void measureFrames(Stage& stage) {
  AppDelegate& delegate = stage.delegate();
  stage.resize({1280, 800});
  stage.solve(Mode::power, u"-2", u"3/2");
  tell("tabs", longestFrame(stage, [&] { delegate.pageTabBarController()->select(0); }));
  tell("drawer opens", longestFrame(stage, [&] { delegate.drawer()->setLeftViewOpened(true); }));
  tell("drawer closes", longestFrame(stage, [&] { delegate.drawer()->setLeftViewOpened(false); }));
  tell("history scrolls", longestFrameOfScrolling(stage));
}

/// The most processor time that passes between two turns of the event loop while something is done: so long
/// the user waits.
double longestTurn(const std::function<void()>& act) {
  double longest = 0;
  double last = processorMilliseconds();
  QTimer ticking;
  QObject::connect(&ticking, &QTimer::timeout, &ticking, [&] {
    longest = std::max(longest, processorMilliseconds() - std::exchange(last, processorMilliseconds()));
  });
  ticking.start(0);
  act();
  QTest::qWait(200);
  return longest;
}

/// Everything that is done with a history, however long it is.
void measureHistory(Stage& stage) {
  tell("reading after the start", longestTurn([] { QTest::qWait(1000); }));
  tell("adding", longestTurn([&stage] { stage.solve(Mode::power, u"-2", u"3/2"); }));
  tell("opening", longestTurn([&stage] { stage.openHistory(); }));
  const auto keys = [&stage](std::initializer_list<Qt::Key> wanted) {
    for (const Qt::Key key : wanted) {
      QTest::keyClick(&stage.window(), key);
      QTest::qWait(100);
    }
  };
  stage.item(QStringLiteral("historyTable")).forceActiveFocus();
  tell("going from end to end", longestTurn([&keys] {
         keys({Qt::Key_End, Qt::Key_PageUp, Qt::Key_Up, Qt::Key_Home, Qt::Key_PageDown});
       }));
  tell("scrolling", longestTurn([&stage] {
         QQuickItem& table = stage.item(QStringLiteral("historyTable"));
         for (int i = 0; i < 100; ++i) {
           table.setProperty("contentY", table.property("contentY").toDouble() + 60);
           QTest::qWait(10);
         }
       }));
  tell("searching", longestTurn([&stage, &keys] {
         stage.tap(QStringLiteral("historySearch"));
         keys({Qt::Key_3, Qt::Key_Slash, Qt::Key_2, Qt::Key_Minus, Qt::Key_7, Qt::Key_Backspace});
         stage.item(QStringLiteral("historySearch")).setProperty("text", QString());
       }));
  const QQuickItem* page = &stage.item(QStringLiteral("historyTable"));
  while (!page->property("controller").isValid()) page = page->parentItem();
  auto& history = *page->property("controller").value<HistoryTableViewController*>();
  for (const int row : {0, history.numberOfRowsInSection(0) / 2})
    tell("deleting from row " + std::to_string(row), longestTurn([&history, row] {
           history.commitEditingStyle(HistoryTableViewController::EditingStyle::Delete, row);
         }));
}

/// A minute in which nobody does anything and the caret blinks.
void measureRest(Stage& stage) {
  stage.tap(QStringLiteral("baseField"));
  stage.picture();
  const double before = processorMilliseconds();
  QEventLoop resting;  // QTest would look every 10 ms whether the time is over.
  QTimer::singleShot(60'000, &resting, &QEventLoop::quit);
  resting.exec();
  tell("rest", (processorMilliseconds() - before) / 1000);
}

}  // namespace

int measure(int argumentCount, char** arguments) {
  const std::string_view wanted = argumentCount > 2 ? arguments[2] : "";
  Application application(argumentCount, arguments);
  for (const auto* answered : {&preferences::isOnboardingFinished, &preferences::isDsgvoAccepted})
    PreferenceStore::standard().setValue(*answered, true);
  PreferenceStore::standard().setValue(preferences::counterForRating, 1000);  // No rating comes in between.
  Stage stage(application);
  static constexpr auto parts =
      std::to_array<std::pair<std::string_view, void (*)(Stage & stage)>>({{"use", measureUse},
                                                                           {"sharing", measureSharing},
                                                                           {"frames", measureFrames},
                                                                           {"history", measureHistory},
                                                                           {"rest", measureRest}});
  const auto* part = std::ranges::find(parts, wanted, [](const auto& each) { return each.first; });
  if (part == parts.end()) throw Failure("use, sharing, frames, history or rest?");
  part->second(stage);
  return 0;
}

}  // namespace tavi::tour
