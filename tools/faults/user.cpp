// A user who throws dice: plays with the application at random, for ./dev faults. What the history holds is
// told after each action, and so are the events that were measured, so that whoever ends this process knows
// what was acknowledged.

#include <QClipboard>
#include <QCommandLineParser>
#include <QCryptographicHash>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPixmapCache>
#include <QTest>
#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <iterator>
#include <random>
#include <string_view>
#include <utility>

#include <malloc.h>

#include "appearance/appearance.h"
#include "number/fatal_stop.h"
#include "platform/analytics.h"
#include "platform/links.h"
#include "platform/localization.h"
#include "platform/preferences.h"
#include "platform/resource_bundle.h"
#include "remote/analytics_events.h"
#include "shell/frame/alert_controller.h"
#include "shell/frame/view_manager.h"
#include "shell/launch/application.h"
#include "shell/settings/settings_view_controller.h"

namespace tavi::faults {

namespace {

void say(const QString& line) {
  std::puts(qPrintable(line));
  std::fflush(stdout);
}

/// A short name of each record, newest first.
QString records(const QList<Calculation>& calculations) {
  QStringList names{QStringLiteral("records")};
  for (const Calculation& each : calculations) {
    const QByteArray text = QJsonDocument(QJsonObject::fromVariantMap(each.properties())).toJson();
    names.append(QCryptographicHash::hash(text, QCryptographicHash::Md5).toHex().left(12));
  }
  return names.join(' ');
}

/// Resident memory of this process in KiB.
long residentMemory() {
  QFile status(QStringLiteral("/proc/self/status"));
  if (!status.open(QFile::ReadOnly)) return 0;
  for (const QByteArray& line : status.readAll().split('\n'))
    if (line.startsWith("VmRSS:")) return line.mid(6).trimmed().split(' ').value(0).toLong();
  return 0;
}

/// Whether an event is one that the vocabulary knows, with no parameter that it does not tell of.
bool isTold(const AnalyticsEvent& event) {
  const events::EventKind* kind = events::kindOf(event.name);
  const QStringList given = event.parameters.value_or(QVariantMap()).keys();
  return kind != nullptr && std::ranges::all_of(given, [kind](const QString& parameter) {
           return std::ranges::any_of(kind->parameters,
                                      [&](QLatin1StringView told) { return told == parameter; });
         });
}

/// Hands and eyes of the user: every place of the window, every key of the keyboard.
class User {
 public:
  User(Application& application, unsigned seed)
      : application_(application), dice_(seed), finger_(QTest::createTouchDevice()) {}

  /// One action; the time that the application took for it, until it waits for the next event.
  std::chrono::nanoseconds act() {
    const auto start = std::chrono::steady_clock::now();
    static constexpr auto actions =
        std::to_array<std::pair<int, void (User::*)()>>({{36, &User::tapControl},
                                                         {20, &User::typeKey},
                                                         {13, &User::tapAnywhere},
                                                         {6, &User::drag},
                                                         {4, &User::turnWheel},
                                                         {4, &User::navigate},
                                                         {2, &User::paste},
                                                         {2, &User::resize},
                                                         {1, &User::changeAppearance},
                                                         {1, &User::changeLanguage},
                                                         {5, &User::solve},
                                                         {2, &User::deleteRecord},
                                                         {2, &User::undo},
                                                         {1, &User::share},
                                                         {1, &User::changeConsent}});
    int rest = throwDice(100);
    for (const auto& [weight, action] : actions) {
      if ((rest -= weight) < 0) {
        (this->*action)();
        break;
      }
    }
    QCoreApplication::processEvents();
    return std::chrono::steady_clock::now() - start;
  }

  /// Whether the user is asked about deleting all records, so that the next action may do that.
  bool isAskedToClear() {
    const auto* alert = qobject_cast<AlertController*>(delegate().drawer()->presentedController());
    return alert && alert->title() == localized("Clear History");
  }

  /// What the process holds, in KiB, in the window's first size, on fresh pages, without a history and with
  /// what is free given back.
  long memoryAtRest() {
    window().resize(412, 870);
    delegate().openTask({});
    QTest::qWait(500);  // The last pages are gone.
    ViewManager::hideToast();
    CalcManager::shared().clearCalculations();
    QPixmapCache::clear();
    application_.engine().collectGarbage();
    malloc_trim(0);
    return residentMemory();
  }

 private:
  AppDelegate& delegate() { return application_.delegate(); }
  QQuickWindow& window() { return *delegate().window(); }
  int throwDice(int sides) { return std::uniform_int_distribution(0, sides - 1)(dice_); }
  const auto& anyOf(const auto& list) {
    return *std::next(list.begin(), throwDice(static_cast<int>(list.size())));
  }

  QPoint anyPlace() { return {throwDice(window().width()), throwDice(window().height())}; }

  static QPoint middle(const QQuickItem& item) {
    return item.mapToScene({item.width() / 2, item.height() / 2}).toPoint();
  }

  void collect(QQuickItem& item, std::vector<QQuickItem*>& controls) {
    if (!item.isVisible()) return;
    if (item.inherits("QQuickAbstractButton") && item.isEnabled() &&
        QRect({}, window().size()).contains(middle(item)))
      controls.push_back(&item);
    for (QQuickItem* child : item.childItems()) collect(*child, controls);
  }

  /// The visible item of that object name below the other; null without one.
  static QQuickItem* find(QQuickItem& item, const QString& name) {
    if (!item.isVisible() || item.objectName() == name) return item.isVisible() ? &item : nullptr;
    for (QQuickItem* child : item.childItems())
      if (QQuickItem* found = find(*child, name)) return found;
    return nullptr;
  }

  void touch(QPoint place) {
    QTest::touchEvent(&window(), finger_.get()).press(0, place);
    QTest::touchEvent(&window(), finger_.get()).release(0, place);
  }

  void tapControl() {
    std::vector<QQuickItem*> controls;
    collect(*window().contentItem(), controls);
    if (controls.empty()) return;
    const QPoint place = middle(*anyOf(controls));
    if (throwDice(2) == 0)
      touch(place);
    else
      QTest::mouseClick(&window(), throwDice(10) == 0 ? Qt::RightButton : Qt::LeftButton, {}, place);
  }

  void tapAnywhere() {
    throwDice(2) == 0 ? touch(anyPlace()) : QTest::mouseClick(&window(), Qt::LeftButton, {}, anyPlace());
  }

  void drag() {
    const QPoint start = anyPlace();
    const QPoint end = anyPlace();
    QTest::touchEvent(&window(), finger_.get()).press(0, start);
    for (int part = 1; part <= 4; ++part)
      QTest::touchEvent(&window(), finger_.get()).move(0, start + (end - start) * part / 4);
    QTest::touchEvent(&window(), finger_.get()).release(0, end);
  }

  void turnWheel() {
    const QPoint turn(0, throwDice(2) == 0 ? 120 : -120);
    const QPoint place = anyPlace();
    QWheelEvent event(place, window().mapToGlobal(place), {}, turn, Qt::NoButton,
                      throwDice(4) == 0 ? Qt::ControlModifier : Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&window(), &event);
  }

  void typeKey() {
    constexpr std::string_view keys = "0123456789..//--xyp^,*+e";
    QTest::keyClick(&window(), anyOf(keys));
  }

  void navigate() {
    static constexpr auto keys =
        std::to_array<Qt::Key>({Qt::Key_Tab,  Qt::Key_Backtab, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space,
                                Qt::Key_Left, Qt::Key_Right,   Qt::Key_Up,     Qt::Key_Down,  Qt::Key_Home,
                                Qt::Key_End,  Qt::Key_PageUp,  Qt::Key_Escape, Qt::Key_Back,  Qt::Key_Delete,
                                Qt::Key_Menu, Qt::Key_Z,       Qt::Key_C,      Qt::Key_V,     Qt::Key_A});
    static constexpr auto modifiers = std::to_array<Qt::KeyboardModifier>(
        {Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier});
    QTest::keyClick(&window(), anyOf(keys), anyOf(modifiers));
  }

  void paste() {
    static constexpr auto texts =
        std::to_array<const char*>({"", "3/4", "−12", "1,5", "2·π", "x²", "٣", "\n\n", "2^10 = 1024", "½"});
    QString text = QString::fromUtf8(anyOf(texts));
    if (throwDice(8) == 0) text = QString(5000, u'9');
    QGuiApplication::clipboard()->setText(text);
    QTest::keyClick(&window(), Qt::Key_V, Qt::ControlModifier);
  }

  void resize() {
    static constexpr auto sizes = std::to_array<QSize>(
        {{412, 870}, {320, 480}, {568, 320}, {360, 640}, {800, 360}, {1280, 800}, {100, 100}});
    window().resize(anyOf(sizes));
  }

  void changeAppearance() { Appearance::shared().force(throwDice(2) == 0); }

  /// As the settings do it, and as a system tells of its own change; both hold from the next start on.
  void changeLanguage() {
    const QStringList& languages = translatedLanguages();
    PreferenceStore::standard().setValue(preferences::language, anyOf(languages));
    QEvent change(QEvent::LocaleChange);
    QCoreApplication::sendEvent(&application_, &change);
  }

  /// A power typed in on fresh pages, or a whole task that another start brings; either has a working.
  void solve() {
    const QString first = QString::number(2 + throwDice(8));
    const QString second = QString::number(1 + throwDice(999));
    const QVariantMap setup{{CalculateViewController::modeKey, qlonglong{throwDice(2)}}};
    if (throwDice(2) == 0)
      return delegate().openTask({{{"aTextField", first}, {"xTextField", second}}, {}, {}, setup});
    delegate().openTask({{}, {}, {}, {{CalculateViewController::modeKey, qlonglong{0}}}});
    QTest::keyClick(&window(), '1');  // Begins to type, at the end of what the last pages held.
    QTest::keyClick(&window(), Qt::Key_A, Qt::ControlModifier);
    for (const QChar digit : second) QTest::keyClick(&window(), digit.toLatin1());
    QTest::keyClick(&window(), '^');
    QTest::keyClick(&window(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&window(), first.front().toLatin1());
    QTest::keyClick(&window(), Qt::Key_Return);
  }

  void deleteRecord() {
    delegate().drawer()->dismissPresented();
    delegate().leftViewController()->didSelectRow(LeftViewController::mainSection, 1);
    QCoreApplication::processEvents();
    QQuickItem* table = find(*window().contentItem(), QStringLiteral("historyTable"));
    if (!table) return;
    table->forceActiveFocus();
    QTest::keyClick(&window(), Qt::Key_Home);
    if (throwDice(2) == 0) QTest::keyClick(&window(), Qt::Key_Down);
    QTest::keyClick(&window(), Qt::Key_Delete);
  }

  void undo() { QTest::keyClick(&window(), Qt::Key_Z, Qt::ControlModifier); }

  void share() {
    if (const QQuickItem* button = find(*window().contentItem(), QStringLiteral("shareButton")))
      touch(middle(*button));
  }

  /// Mostly agrees, so that there are measurements to lose.
  void changeConsent() {
    delegate().drawer()->dismissPresented();
    delegate().leftViewController()->showSettings();
    auto* settings = qobject_cast<SettingsViewController*>(delegate().drawer()->presentedController());
    if (settings) settings->setMeasuring(throwDice(3) != 0);
  }

  Application& application_;
  std::mt19937 dice_;
  std::unique_ptr<QPointingDevice> finger_;
};

struct Options {
  unsigned seed;
  int actions;
  bool isQuiet;      ///< Tells how it went and the memory that it took, not what the history holds.
  bool isMeasuring;  ///< Reports an event after each action.
};

/// Reports events that can be told apart, and tells of them once they are kept.
class Measured {
 public:
  explicit Measured(unsigned seed) : seed_(seed) {}

  void report(int action) {
    if (!isAccepted()) return say("withdrawn");
    const QString name = QStringLiteral("event-%1-%2").arg(seed_).arg(action);
    const double before = processorMilliseconds();
    Analytics::logEvent(events::tappedRatingInMenu, QVariantMap{{"taviApp", name}});
    longest_ = std::max(longest_, processorMilliseconds() - before);
    say(QStringLiteral("measured ") + name);
  }

  static bool isAccepted() {
    return !PreferenceStore::standard().value(preferences::acceptedMeasurement).isEmpty();
  }

  /// The most processor time that an event took, in milliseconds.
  double longest() const { return longest_; }

 private:
  static double processorMilliseconds() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return 1e3 * static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e6;
  }

  unsigned seed_;
  double longest_ = 0;
};

/// What the history holds, and whether nothing is to be measured.
void sayState() {
  say(records(CalcManager::shared().calculations()));
  if (!Measured::isAccepted()) say("withdrawn");
}

/// Acts until it has acted often enough. Memory at the end is compared with the most that was held at rest in
/// the first 10,000 actions, or half of fewer, in which everything has been opened a few times.
int play(Application& application, const Options& options) {
  if (application.launch()) {
    say("runs already");
    return 0;
  }
  if (!QTest::qWaitForWindowExposed(application.delegate().window(), 60'000)) return 1;
  say("up");
  User user(application, options.seed);
  Measured measured(options.seed);
  const CalcManager& store = CalcManager::shared();
  if (!options.isQuiet) sayState();
  QString told = records(store.calculations());
  long settled = 0;
  std::chrono::nanoseconds longest{};
  for (int action = 0; action < options.actions; ++action) {
    if (options.isQuiet && action % 2000 == 0) {
      const long memory = user.memoryAtRest();
      if (action <= std::min(10'000, options.actions / 2)) settled = std::max(settled, memory);
    }
    if (!options.isQuiet && user.isAskedToClear()) say("asked to clear");
    longest = std::max(longest, user.act());
    if (options.isMeasuring) measured.report(action);
    if (options.isQuiet) continue;
    const QString now = records(store.calculations());
    if (now != told) say(told = now);
  }
  if (options.isQuiet) say(QStringLiteral("memory %1 %2").arg(settled).arg(user.memoryAtRest()));
  say(QStringLiteral("longest %1")
          .arg(std::chrono::duration_cast<std::chrono::milliseconds>(longest).count()));
  if (options.isMeasuring) say(QStringLiteral("longest event %1").arg(measured.longest()));
  return 0;
}

int go(int argumentCount, char** arguments) {
  Application application(argumentCount, arguments);
  QCommandLineParser parser;
  parser.addOptions(
      {{"seed", "of the dice", "number", "1"},
       {"actions", "how many; many more than one lives to do if absent", "number", "2000000000"},
       {"settings", "folder of another ProjectSettings.json", "folder"},
       {"quiet", "tell the memory in place of what the history holds"},
       {"measure", "report an event after each action"},
       {"language", "from the next start on", "code"},
       {"dump", "only tell what the history holds"},
       {"fill", "first put so many records into the history", "number"},
       {"agree", "first agree to everything, measurement too"}});
  parser.process(Application::arguments());
  if (parser.isSet("settings")) ResourceBundle::overlayMain(parser.value("settings"));
  Links::shared().setHandler({}, [](const QUrl&) { return true; });
  if (parser.isSet("dump")) {
    sayState();
    for (const Calculation& each : CalcManager::shared().calculations())
      say("record " +
          QJsonDocument(QJsonObject::fromVariantMap(each.properties())).toJson(QJsonDocument::Compact));
    return 0;
  }
  if (parser.isSet("language"))
    PreferenceStore::standard().setValue(preferences::language, parser.value("language"));
  if (parser.isSet("agree")) {
    PreferenceStore& preferences = PreferenceStore::standard();
    for (const auto* answer : {&preferences::isOnboardingFinished, &preferences::isDsgvoAccepted,
                               &preferences::isYoutubeDsgvoAccepted})
      preferences.setValue(*answer, true);
    preferences.setValue(preferences::acceptedMeasurement,
                         MeasurementSettings::fromBundle(ResourceBundle::main()).terms());
  }
  Analytics::setSink([](const AnalyticsEvent& event) {
    if (!isTold(event)) say(QStringLiteral("not in the vocabulary: ") + event.name);
  });
  // Otherwise the first start would leave its sample task alone in the history.
  CalcManager::shared().runFirstStartStep();
  for (int record = 0; record < parser.value("fill").toInt(); ++record)
    CalcManager::shared().addCalculation({{}, QString::number(record), {}, {}});
  return play(application, {parser.value("seed").toUInt(), parser.value("actions").toInt(),
                            parser.isSet("quiet"), parser.isSet("measure")});
}

}  // namespace

}  // namespace tavi::faults

int main(int argumentCount, char** arguments) {
  try {
    return tavi::faults::go(argumentCount, arguments);
  } catch (const tavi::FatalStop& stop) {
    std::fprintf(stderr, "fatal stop: %s\n", stop.reason.c_str());
    return 3;
  }
}
