#include "tour/measure.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <array>
#include <cstdio>
#include <ctime>
#include <map>
#include <optional>
#include <utility>
#include <vector>

#include "platform/preferences.h"
#include "shell/calc_manager.h"
#include "shell/calculate_view_controller.h"
#include "shell/history/history_table_view_cell.h"
#include "tour/stage.h"

namespace tavi::tour {

namespace {

constexpr int runs = 5;
constexpr int manyRecords = 10'000;

constexpr const char* firstFrame = "first frame, ms";
constexpr const char* solution = "tap to frame with solution, ms";
constexpr const char* slowestSolution = "the same, slowest worked example, ms";
constexpr const char* longSolution = "the same, 1,000 copies, ms";
constexpr const char* key = "a key with its preview, ms of the processor";
constexpr const char* longKey = "the same, 9,999 copies";
constexpr const char* memory = "resident with solution open, MB";
constexpr const char* history = "opening the history to its first frame, ms";
constexpr const char* historyRows = "rows of the history that are typeset";
constexpr const char* historyScroll = "scrolling it: longest between two frames, ms";
constexpr const char* historySearch = "a key of a search in it, ms of the processor";
constexpr const char* adding = "adding a record, ms";
constexpr const char* sharing = "picture of 300 rows, ms";
constexpr const char* sharingBlock = "300 rows: longest without events, ms";
constexpr const char* sharingMemory = "300 rows: peak memory beyond before, MB";
constexpr const char* sharingWide = "picture of a line of 10,000 factors, ms";
constexpr const char* sharingWideBlock = "10,000 factors: longest without events, ms";
constexpr const char* sharingWideMemory = "10,000 factors: peak memory beyond before, MB";
constexpr auto figureNames = std::to_array<const char*>(
    {firstFrame, solution, slowestSolution, longSolution, key, longKey, memory, history, historyRows,
     historyScroll, historySearch, adding, sharing, sharingBlock, sharingMemory, sharingWide,
     sharingWideBlock, sharingWideMemory});

using Figures = std::map<QByteArray, std::vector<double>>;

double milliseconds(const QElapsedTimer& timer) {
  return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

void tell(const char* name, double figure) {
  std::printf("%s=%.2f\n", name, figure);
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

/// Milliseconds from the tap on calculate to the first frame with the solution.
double timeToSolution(Stage& stage, const Task& task) {
  stage.prepare(task.mode, task.first, task.second);
  QElapsedTimer timer;
  std::optional<double> time;
  const auto connection =
      QObject::connect(&stage.window(), &QQuickWindow::frameSwapped, &stage.window(), [&] {
        if (!time && stage.delegate().pageTabBarController()->selectedIndex() == 1)
          time = milliseconds(timer);
      });
  timer.start();
  stage.tap(QStringLiteral("key Calculate"));
  waitUntil([&time] { return time.has_value(); }, "a frame with the solution");
  QObject::disconnect(connection);
  return *time;
}

/// The most processor time that a key of a task takes, with what is shown of the task at once.
double timeOfKeys(Stage& stage, const Task& task) {
  stage.prepare(task.mode, task.first, u"");
  stage.tap(task.mode == Mode::power ? QStringLiteral("baseField") : QStringLiteral("radicandField"));
  auto& page = dynamic_cast<CalculateViewController&>(
      *stage.delegate().pageTabBarController()->viewControllers().front());
  std::clock_t longest = 0;
  for (const QChar title : task.second) {
    const std::clock_t start = std::clock();
    page.tappedKeypadButton(title);
    longest = std::max(longest, std::clock() - start);
  }
  return 1000.0 * static_cast<double>(longest) / CLOCKS_PER_SEC;
}

/// One process start; the first frame counts from before the process exists.
bool runProbe(Figures& figures) {
  QProcess process;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(QStringLiteral("QT_LOGGING_RULES"), QStringLiteral("*.info=false"));
  process.setProcessEnvironment(environment);
  process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  QElapsedTimer timer;
  timer.start();
  process.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(probeArgument)});
  while (process.state() != QProcess::NotRunning || process.canReadLine()) {
    if (!process.canReadLine() && !process.waitForReadyRead(30'000)) break;
    while (process.canReadLine()) {
      const QByteArrayList line = process.readLine().trimmed().split('=');
      const bool isFrame = line.front() == firstFrame;
      figures[line.front()].push_back(isFrame ? milliseconds(timer) : line.value(1).toDouble());
    }
  }
  process.waitForFinished();
  return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
}

/// Some starts in a row, of which the first only warms the caches.
bool runProbes(Figures& figures) {
  Figures warming;
  bool isPassed = runProbe(warming);
  for (int run = 0; run < runs && isPassed; ++run) isPassed = runProbe(figures);
  return isPassed;
}

/// The median as a text, or a dash where nothing was measured.
QByteArray median(std::vector<double> values) {
  if (values.empty()) return "-";
  std::ranges::sort(values);
  return QByteArray::number(values.at(values.size() / 2), 'f', 1);
}

/// Opens the history and tells when it is on the screen.
void measureHistory(Stage& stage) {
  QElapsedTimer timer;
  bool isShown = false;
  timer.start();
  stage.openHistory();
  QObject::connect(&stage.window(), &QQuickWindow::frameSwapped, &stage.window(), [&] {
    if (!std::exchange(isShown, true)) tell(history, milliseconds(timer));
  });
  waitUntil([&isShown] { return isShown; }, "a frame with the history");
  const auto* content =
      stage.item(QStringLiteral("historyTable")).property("contentItem").value<QQuickItem*>();
  const auto rows = std::ranges::count_if(content->childItems(), [](const QQuickItem* each) {
    return qobject_cast<const HistoryTableViewCell*>(each) != nullptr;
  });
  tell(historyRows, static_cast<double>(rows));
}

/// Draws a long history upwards by nearly a row for each frame.
void measureScrolling(Stage& stage) {
  constexpr int frames = 200;
  constexpr double way = 60;
  QQuickItem& table = stage.item(QStringLiteral("historyTable"));
  if (table.property("contentHeight").toDouble() < frames * way + table.height()) return;
  QElapsedTimer timer;
  double longest = 0;
  int shown = 0;
  const auto connection =
      QObject::connect(&stage.window(), &QQuickWindow::frameSwapped, &stage.window(), [&] {
        if (shown++ > 0) longest = std::max(longest, milliseconds(timer));
        timer.start();
        table.setProperty("contentY", table.property("contentY").toDouble() + way);
      });
  stage.window().update();
  waitUntil([&shown] { return shown > frames; }, "the history scrolls");
  QObject::disconnect(connection);
  tell(historyScroll, longest);
}

/// The most processor time that a key of a search takes, with the frame that shows what it finds.
void measureSearch(Stage& stage) {
  int frames = 0;
  const auto connection = QObject::connect(&stage.window(), &QQuickWindow::frameSwapped, &stage.window(),
                                           [&frames] { ++frames; });
  QTest::keyClick(&stage.window(), Qt::Key_F, Qt::ControlModifier);
  std::clock_t longest = 0;
  for (const char letter : {'3', '/', '2', ' ', 'p', 'o', 'w', 'e', 'r'}) {
    const int before = frames;
    const std::clock_t start = std::clock();
    QTest::keyClick(&stage.window(), letter);
    waitUntil([&] { return frames > before; }, "a frame with what is found");
    longest = std::max(longest, std::clock() - start);
  }
  QObject::disconnect(connection);
  tell(historySearch, 1000.0 * static_cast<double>(longest) / CLOCKS_PER_SEC);
}

/// A full history, written at once.
void fillStore() {
  PreferenceStore& store = PreferenceStore::standard();
  CalcManager(store).runFirstStartStep();
  const QVariant record = CalcManager(store).calculation(0).properties();
  store.setValue(QStringLiteral("Calculations"), QVariantList(manyRecords, record));
  if (CalcManager(store).calculations().size() != manyRecords) throw Failure("the history is not filled");
}

/// Shares a working, which stays open, and tells what that took.
void share(Stage& stage, const SolutionSteps& steps, const std::array<const char*, 3>& names) {
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
  tell(names[0], milliseconds(timer));
  tell(names[1], longest);
  tell(names[2], statusMegabytes("VmHWM") - before);
  const QSize size = stage.sharedPicture().size();
  std::fprintf(stderr, "%s: %d x %d\n", names[0], size.width(), size.height());
  stage.tap(QStringLiteral("closeSheet"));
  waitUntil([&stage] { return stage.sharedPicture().isNull(); }, "the sheet is closed");
}

}  // namespace

bool measure() {
  Figures empty;
  Figures full;
  if (!runProbes(empty)) return false;
  fillStore();
  if (!runProbes(full)) return false;
  std::printf("%-46s %10s %14s\n", "median of 5 warm runs", "new store", "10,000 records");
  for (const char* name : figureNames)
    std::printf("%-46s %10s %14s\n", name, median(empty[name]).constData(), median(full[name]).constData());
  return true;
}

int probe(int argumentCount, char** arguments) {
  Application application(argumentCount, arguments);
  for (const auto* answered : {&preferences::isOnboardingFinished, &preferences::isDsgvoAccepted})
    PreferenceStore::standard().setValue(*answered, true);
  PreferenceStore::standard().setValue(preferences::counterForRating, 1000);  // No rating comes in between.
  Stage stage(application);
  tell(firstFrame, 0);

  tell(solution, timeToSolution(stage, {Mode::power, "-2", "3/2"}));
  stage.picture();
  tell(memory, statusMegabytes("VmRSS"));

  double slowest = 0;
  for (const Task& task : workedExamples()) slowest = std::max(slowest, timeToSolution(stage, task));
  tell(slowestSolution, slowest);
  tell(longSolution, timeToSolution(stage, {Mode::power, "1000", "2"}));

  double slowestKey = 0;
  for (const Task& task : workedExamples()) slowestKey = std::max(slowestKey, timeOfKeys(stage, task));
  tell(key, slowestKey);
  tell(longKey, timeOfKeys(stage, {Mode::power, "9999", "-1234.56789/9"}));

  QElapsedTimer timer;
  timer.start();
  CalcManager::shared().addCalculation(CalcManager::shared().calculation(0));
  tell(adding, milliseconds(timer));

  const auto step = [](std::string latex) {
    return SolutionStep{.title = "Step", .latexString = std::move(latex), .messageString = std::nullopt};
  };
  share(stage, SolutionSteps(300, step("=\\left( \\frac{2}{3} \\right)^{-2} \\approx 2.25")),
        {sharing, sharingBlock, sharingMemory});
  std::string factors;
  for (int i = 0; i < 10'000; ++i) factors += "\\left( 12 \\right) ";
  share(stage, {step(factors)}, {sharingWide, sharingWideBlock, sharingWideMemory});

  measureHistory(stage);
  measureScrolling(stage);
  measureSearch(stage);
  return 0;
}

}  // namespace tavi::tour
