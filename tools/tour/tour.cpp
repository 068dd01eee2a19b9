#include "tour/tour.h"

#include <QTest>
#include <array>

#include "appearance/dt_text_field.h"
#include "appearance/formula_scale.h"
#include "appearance/interface_colors.h"
#include "platform/localization.h"
#include "platform/voice.h"

namespace tavi::tour {

namespace {

void expectRows(Stage& stage, std::size_t least) {
  const std::size_t rows = stage.solutionSteps().size();
  if (rows < least) throw Failure("a solution of only " + std::to_string(rows) + " rows");
}

void firstStart(Stage& stage) {
  for (const char* name : {"menuButton", "tab0", "baseField", "exponentField", "key 1", "key Calculate"})
    stage.item(QString::fromLatin1(name));
  if (stage.item(QStringLiteral("tab1")).isEnabled()) throw Failure("a solution before the first task");
}

void power(Stage& stage) {
  stage.solve(Mode::power, u"-2", u"3/2");
  expectRows(stage, 3);
}

// The exact value beside a working that ends in infinity, and of a root with its note.
void exactValue(Stage& stage) {
  stage.solve(Mode::power, u"13", u"9");
  stage.tap(QStringLiteral("exactButton"));
  stage.item(QStringLiteral("exactValue"));
}

void exactRoot(Stage& stage) {
  stage.solve(Mode::root, u"2", u"2");
  const auto result = static_cast<int>(stage.solutionSteps().size()) - 1;
  QMetaObject::invokeMethod(&stage.item(QStringLiteral("solutionTable")), "positionViewAtIndex",
                            Q_ARG(int, result), Q_ARG(int, 2));  // ListView.End
  stage.picture();
  stage.tap(QStringLiteral("exactButton"));
  stage.item(QStringLiteral("moreDigits"));
}

void root(Stage& stage) {
  stage.solve(Mode::root, u"3", u"27/8");
  expectRows(stage, 3);
}

void manySteps(Stage& stage) {
  stage.solve(Mode::power, u"2.5", u"0.5");
  expectRows(stage, 6);
}

void missingValue(Stage& stage) {
  stage.prepare(Mode::power, u"", u"12");
  stage.tap(QStringLiteral("key Calculate"));
  waitUntil([&stage] { return stage.shows(QStringLiteral("toast")); }, "a toast is shown");
  const auto& field = dynamic_cast<DTTextField&>(stage.item(QStringLiteral("exponentField")));
  if (field.borderColor() != InterfaceColor::orange()) throw Failure("the missing field is not coloured");
}

void noSolution(Stage& stage) {
  stage.solve(Mode::power, u"1/2", u"-4");
  expectRows(stage, 2);
}

void wideLine(Stage& stage) {
  stage.solve(Mode::power, u"30", u"2");
  stage.scrollWideLine();
}

void openDrawer(Stage& stage) {
  stage.sendToastsAway();
  if (stage.delegate().drawer()->isLeftViewOpened()) return;
  stage.tap(QStringLiteral("menuButton"));
  waitUntil([&stage] { return stage.shows(QStringLiteral("menuRow 3 0")); }, "all of the menu is open");
}

void fillHistory() {
  constexpr auto tasks = std::to_array<std::pair<int, const char*>>(
      {{0, "\\frac{3}{2}^{-2}"},
       {1, "\\sqrt[3]{\\frac{27}{8}}"},
       {0, "0.5^{2.5}"},
       {1, "\\sqrt[12]{4096x}"},
       {0, "123456789.123456789123456789^{\\frac{31415926535}{27182818284}}"},
       {0, "2^{30}"},
       {0, "\\frac{2\\pi}{3}^{\\frac{1}{2}}"},
       {1, "\\sqrt[2]{144}"}});
  CalcManager& store = CalcManager::shared();
  store.clearCalculations();
  // The first ones are of earlier versions, which knew no days; the others of some days up to today.
  constexpr auto daysAgo = std::to_array<int>({-1, -1, 40, 40, 1, 0, 0, 0});
  const QDateTime now = QDateTime::currentDateTimeUtc();
  for (std::size_t i = 0; i < tasks.size(); ++i) {
    Calculation task{
        {}, QString::fromUtf8(tasks[i].second), {}, {{CalculateViewController::modeKey, tasks[i].first}}};
    if (daysAgo[i] >= 0) task.calculatedAt = now.addDays(-daysAgo[i]);
    store.addCalculation(task);
  }
}

void history(Stage& stage) {
  // The last station may have left a menu open.
  for (const char* entry : {"copyTyped", "importHistory"}) {
    if (!stage.shows(QString::fromLatin1(entry))) continue;
    QTest::keyClick(&stage.window(), Qt::Key_Escape);
    waitUntil([&] { return !stage.shows(QString::fromLatin1(entry)); }, "the menu is closed");
  }
  fillHistory();
  stage.openHistory();
  waitUntil([&stage] { return stage.shows(QStringLiteral("historyRow2")); }, "the history is open");
  stage.picture();  // its rows come before the toolbar has its places
}

void editHistory(Stage& stage) {
  history(stage);
  stage.tap(QStringLiteral("historyedit"));
  stage.picture();
  stage.tap(QStringLiteral("deleteControl"));
}

void searchHistory(Stage& stage) {
  history(stage);
  QTest::keyClick(&stage.window(), Qt::Key_F, Qt::ControlModifier);
  QTest::keyClick(&stage.window(), Qt::Key_4);
  waitUntil([&stage] { return stage.item(QStringLiteral("historyTable")).property("count") == 3; },
            "some of the history is found");
}

void copyFromHistory(Stage& stage) {
  history(stage);
  const QPointF place = stage.item(QStringLiteral("historyRow1")).mapToScene({60, 30});
  QTest::mouseClick(&stage.window(), Qt::RightButton, {}, place.toPoint());
  waitUntil([&stage] { return stage.shows(QStringLiteral("copyTyped")); }, "the row's menu is open");
}

void takeHistoryAlong(Stage& stage) {
  history(stage);
  stage.tap(QStringLiteral("historyMore"));
  waitUntil([&stage] { return stage.shows(QStringLiteral("importHistory")); }, "the menu is open");
}

void clearHistory(Stage& stage) {
  history(stage);
  stage.tap(QStringLiteral("historyclear"));
  waitUntil([&stage] { return stage.shows(QStringLiteral("alertAction0")); }, "the question is asked");
}

void emptyHistory(Stage& stage) {
  clearHistory(stage);
  stage.picture();  // the question has its place once it was drawn
  stage.tap(QStringLiteral("alertAction0"));
  waitUntil([&stage] { return stage.shows(QStringLiteral("historyCalculate")); }, "the history is empty");
}

// A text wider than its field, a result beyond counting, and the menu of a field over all of that.
void typingMore(Stage& stage) {
  stage.prepare(Mode::power, u"40", u"1234567890123.98765");
  const QPointF place = stage.item(QStringLiteral("baseField")).mapToScene({60, 30});
  QTest::mouseClick(&stage.window(), Qt::RightButton, {}, place.toPoint());
}

// Tab goes through all controls once round; the picture shows it at the key that calculates.
void keyboard(Stage& stage) {
  stage.prepare(Mode::power, u"", u"2");
  const auto focused = [&stage] {
    const QQuickItem* item = stage.window().activeFocusItem();
    while (item != nullptr && item->objectName().isEmpty()) item = item->parentItem();
    return item != nullptr ? item->objectName() : QString();
  };
  constexpr qsizetype patience = 20;
  QStringList round;
  for (QString next = focused(); !round.contains(next) && round.size() < patience; next = focused()) {
    round.append(next);
    QTest::keyClick(&stage.window(), Qt::Key_Tab);
  }
  round.sort();
  if (round != QStringList({"baseField", "exponentField", "key Calculate", "manualButton", "menuButton",
                            "segment0", "segment1", "tab0", "toolbarRemoveButton"}))
    throw Failure("Tab goes to " + round.join(", ").toStdString());
  while (focused() != u"key Calculate") QTest::keyClick(&stage.window(), Qt::Key_Tab);
}

void typing(Stage& stage) {
  stage.type(QStringLiteral("baseField"), u"3/2");
  stage.tap(QStringLiteral("exponentField"));
}

void shareManySteps(Stage& stage) {
  manySteps(stage);
  stage.share();
}

void shareWideLine(Stage& stage) {
  stage.solve(Mode::power, u"30", u"2");
  stage.share();
}

void shareNoSolution(Stage& stage) {
  noSolution(stage);
  stage.share();
}

// A task typed in a window of another size than before. Nothing of its controls may be cut.
template <Mode mode, int width, int height>
void typingAt(Stage& stage) {
  stage.resize({width, height});
  stage.prepare(mode, u"-2/3", u"3/2");
  for (const char* name :
       {"segment0", "segment1", "manualButton", mode == Mode::power ? "exponentField" : "radicandField",
        "key x", "key Calculate"}) {
    const QQuickItem& item = stage.item(QString::fromLatin1(name));
    if (!QRectF(0, 0, width, height).contains(item.mapRectToScene(item.boundingRect())))
      throw Failure(std::string(name) + " is cut");
  }
}

template <void (*act)(Stage&), int width, int height>
void at(Stage& stage) {
  stage.resize({width, height});
  act(stage);
}

template <void (*act)(Stage&)>
void cleared(Stage& stage) {
  stage.clearTheView();
  act(stage);
}

/// Reads aloud without a sound, whatever the system has, and never comes to an end.
class SilentVoice : public Voice {
 public:
  State state() const override { return State::Ready; }
  void prepare() override {}
  void say(const QString& /*text*/) override {}
  void stop() override {}
};

void rowMenu(Stage& stage) {
  manySteps(stage);
  stage.delegate().solutionViewController()->reader()->setVoice(std::make_unique<SilentVoice>());
  stage.picture();
  const QPointF place = stage.item(QStringLiteral("solutionTable")).mapToScene({40, 40});
  QTest::mouseClick(&stage.window(), Qt::RightButton, {}, place.toPoint());
  waitUntil([&stage] { return stage.shows(QStringLiteral("copyRowLatex")); }, "the row's menu is open");
}

void readAloud(Stage& stage) {
  stage.tap(QStringLiteral("readRowAloud"));
  waitUntil([&stage] { return !stage.shows(QStringLiteral("copyRowLatex")); }, "the row's menu is closed");
}

void readAloudFromMenu(Stage& stage) {
  rowMenu(stage);
  readAloud(stage);
}

void shareIt(Stage& stage) {
  stage.share();
}

// A working with formulas of another size; the usual one comes back, for the stations after it.
template <int percent>
void scaledFormulas(Stage& stage) {
  manySteps(stage);
  stage.picture();
  stage.delegate().solutionViewController()->scaleFormulas(percent);
}

void usualFormulas(Stage& stage) {
  manySteps(stage);
  stage.picture();
  QTest::keyClick(&stage.window(), Qt::Key_0, Qt::ControlModifier);
  if (FormulaScale::shared().percent() != FormulaScale::usual) throw Failure("the formulas keep their size");
}

constexpr QSize phone{412, 870};
constexpr QSize tablet{1280, 800};
constexpr QSize narrow{360, 640};
constexpr QSize low{800, 360};

constexpr auto phoneSteps = std::to_array<Step>({{"01-first-start", firstStart},
                                                 {"02-power", power},
                                                 {"03-root", root},
                                                 {"49-exact-value", exactValue},
                                                 {"50-exact-root", cleared<exactRoot>},
                                                 {"04-many-steps", cleared<manySteps>},
                                                 {"05-missing-value", missingValue},
                                                 {"48-keyboard", keyboard},
                                                 {"06-no-solution", noSolution},
                                                 {"43-typing-more", typingMore},
                                                 {"07-wide-line", wideLine},
                                                 {"08-open-drawer", openDrawer},
                                                 {"16-history", history},
                                                 {"130-search-history", searchHistory},
                                                 {"131-copy-history", copyFromHistory},
                                                 {"132-history-menu", takeHistoryAlong},
                                                 {"17-edit-history", editHistory},
                                                 {"18-clear-history", clearHistory},
                                                 {"19-empty-history", emptyHistory}});
constexpr auto darkSteps = std::to_array<Step>({{"09-dark-input", typing},
                                                {"10-dark-solution", power},
                                                {"142-dark-read-aloud", readAloudFromMenu},
                                                {"11-dark-missing-value", missingValue},
                                                {"12-dark-drawer", openDrawer},
                                                {"20-dark-history", history},
                                                {"133-dark-search-history", searchHistory},
                                                {"134-dark-history-menu", takeHistoryAlong},
                                                {"21-dark-edit-history", editHistory},
                                                {"22-dark-empty-history", emptyHistory}});
constexpr auto tabletSteps = std::to_array<Step>({{"13-tablet-input", typing},
                                                  {"14-tablet-solution", manySteps},
                                                  {"15-tablet-drawer", openDrawer},
                                                  {"23-tablet-history", history},
                                                  {"135-tablet-search-history", searchHistory},
                                                  {"24-tablet-edit-history", editHistory}});
constexpr auto shareSteps = std::to_array<Step>({{"28-share", shareManySteps}});
constexpr auto darkShareSteps = std::to_array<Step>({{"29-dark-share", shareWideLine}});
constexpr auto tabletShareSteps = std::to_array<Step>({{"30-tablet-share", shareNoSolution}});
constexpr auto sizeSteps = std::to_array<Step>({{"31-input-320x480", typingAt<Mode::power, 320, 480>},
                                                {"32-input-360x640", typingAt<Mode::power, 360, 640>},
                                                {"33-input-568x320", typingAt<Mode::power, 568, 320>},
                                                {"34-input-800x360", typingAt<Mode::root, 800, 360>},
                                                {"35-input-2560x1440", typingAt<Mode::power, 2560, 1440>},
                                                {"36-input-412x870", typingAt<Mode::root, 412, 870>},
                                                {"44-solution-568x320", at<manySteps, 568, 320>},
                                                {"45-solution-320x480", at<manySteps, 320, 480>},
                                                {"46-drawer-568x320", at<openDrawer, 568, 320>},
                                                {"47-history-568x320", at<history, 568, 320>}});
constexpr auto darkSizeSteps =
    std::to_array<Step>({{"37-dark-input-320x480", typingAt<Mode::root, 320, 480>},
                         {"38-dark-input-360x640", typingAt<Mode::root, 360, 640>},
                         {"39-dark-input-568x320", typingAt<Mode::root, 568, 320>},
                         {"40-dark-input-800x360", typingAt<Mode::power, 800, 360>},
                         {"41-dark-input-1280x800", typingAt<Mode::root, 1280, 800>},
                         {"42-dark-input-412x870", typingAt<Mode::power, 412, 870>}});
constexpr auto wideSteps = std::to_array<Step>({{"151-wide-input-1000x700", at<typing, 1000, 700>},
                                                {"152-wide-1000x700", at<manySteps, 1000, 700>},
                                                {"153-wide-1280x800", at<manySteps, 1280, 800>},
                                                {"154-wide-drawer-1280x800", openDrawer},
                                                {"155-wide-1920x1080", cleared<at<manySteps, 1920, 1080>>},
                                                {"156-narrow-again", at<manySteps, 412, 870>}});
constexpr auto darkWideSteps = std::to_array<Step>({{"157-dark-wide-input-1000x700", at<typing, 1000, 700>},
                                                    {"158-dark-wide-1280x800", at<manySteps, 1280, 800>},
                                                    {"159-dark-wide-1920x1080", at<manySteps, 1920, 1080>}});
constexpr auto scaleSteps = std::to_array<Step>({{"160-small-formulas", scaledFormulas<70>},
                                                 {"161-large-formulas", scaledFormulas<250>},
                                                 {"162-usual-formulas", usualFormulas}});
constexpr auto startSteps = std::to_array<Step>({{"51-first-consent", firstConsent},
                                                 {"52-introduction-1", introductionPage1},
                                                 {"53-introduction-2", introductionPage2},
                                                 {"54-introduction-3", introductionPage3},
                                                 {"55-introduction-4", introductionPage4},
                                                 {"56-introduction-5", introductionPage5}});
constexpr auto aroundSteps = std::to_array<Step>({{"163-settings", settings},
                                                  {"57-manual", inputManual},
                                                  {"58-locked-videos", lockedVideos},
                                                  {"59-video-consent", videoConsent},
                                                  {"60-video-guide", videoGuide},
                                                  {"61-ready-videos", readyVideos},
                                                  {"62-unknown-video", unknownVideo},
                                                  {"63-advertisement", advertisement},
                                                  {"64-rating", rating}});
constexpr auto darkAroundSteps = std::to_array<Step>({{"164-dark-settings", settings},
                                                      {"65-dark-introduction", menuIntroduction},
                                                      {"66-dark-manual", solutionManual},
                                                      {"67-dark-locked-videos", lockedVideos},
                                                      {"68-dark-video-guide", videoGuide},
                                                      {"69-dark-ready-videos", readyVideos},
                                                      {"70-dark-advertisement", advertisement},
                                                      {"71-dark-rating", rating}});
constexpr auto tabletAroundSteps = std::to_array<Step>({{"165-tablet-settings", settings},
                                                        {"72-tablet-introduction", menuIntroduction},
                                                        {"73-tablet-manual", inputManual},
                                                        {"74-tablet-locked-videos", lockedVideos},
                                                        {"75-tablet-video-guide", videoGuide},
                                                        {"76-tablet-ready-videos", readyVideos},
                                                        {"77-tablet-advertisement", advertisement},
                                                        {"78-tablet-rating", rating}});
constexpr auto narrowSteps = std::to_array<Step>({{"100-narrow-consent", firstConsent},
                                                  {"101-narrow-introduction-1", introductionPage1},
                                                  {"102-narrow-introduction-2", introductionPage2},
                                                  {"103-narrow-introduction-3", introductionPage3},
                                                  {"104-narrow-introduction-4", introductionPage4},
                                                  {"105-narrow-introduction-5", introductionPage5},
                                                  {"106-narrow-start", cleared<firstStart>},
                                                  {"107-narrow-root", typingAt<Mode::root, 360, 640>},
                                                  {"108-narrow-missing-value", missingValue},
                                                  {"109-narrow-solution", manySteps},
                                                  {"110-narrow-no-solution", noSolution},
                                                  {"111-narrow-row-menu", rowMenu},
                                                  {"141-narrow-read-aloud", readAloud},
                                                  {"112-narrow-share", shareIt},
                                                  {"113-narrow-drawer", cleared<openDrawer>},
                                                  {"114-narrow-manual", inputManual},
                                                  {"115-narrow-solution-manual", solutionManual},
                                                  {"116-narrow-videos", lockedVideos},
                                                  {"117-narrow-video-consent", videoConsent},
                                                  {"118-narrow-video-guide", videoGuide},
                                                  {"119-narrow-ready-videos", readyVideos},
                                                  {"120-narrow-advertisement", advertisement},
                                                  {"121-narrow-rating", rating},
                                                  {"122-narrow-history", history},
                                                  {"136-narrow-search-history", searchHistory},
                                                  {"137-narrow-copy-history", copyFromHistory},
                                                  {"138-narrow-history-menu", takeHistoryAlong},
                                                  {"123-narrow-edit-history", editHistory},
                                                  {"124-narrow-clear-history", clearHistory},
                                                  {"125-narrow-empty-history", emptyHistory},
                                                  {"126-narrow-settings", cleared<settings>}});
constexpr auto lowSteps = std::to_array<Step>({{"166-low-settings", settings},
                                               {"84-low-introduction", menuIntroduction},
                                               {"85-low-manual", inputManual},
                                               {"86-low-videos", lockedVideos},
                                               {"87-low-video-consent", videoConsent},
                                               {"88-low-advertisement", advertisement},
                                               {"89-low-rating", rating},
                                               {"139-low-history", cleared<history>},
                                               {"140-low-search-history", searchHistory}});
constexpr auto chartSteps = std::to_array<Step>({{"90-line-charts", lineCharts},
                                                 {"91-step-charts", stepCharts},
                                                 {"92-moving-circle", movingCircle},
                                                 {"93-resting-circle", restingCircle},
                                                 {"94-shared-charts", sharedCharts}});
constexpr auto darkChartSteps = std::to_array<Step>({{"95-dark-line-charts", lineCharts},
                                                     {"96-dark-step-charts", stepCharts},
                                                     {"97-dark-circle", restingCircle}});
constexpr auto tabletChartSteps =
    std::to_array<Step>({{"98-tablet-line-charts", lineCharts}, {"99-tablet-circle", restingCircle}});
constexpr auto chartSizeSteps =
    std::to_array<Step>({{"143-line-charts-360x640", at<lineCharts, 360, 640>},
                         {"144-step-charts-360x640", at<stepCharts, 360, 640>},
                         {"145-line-charts-800x360", at<lineCharts, 800, 360>},
                         {"146-circle-800x360", at<restingCircle, 800, 360>},
                         {"147-shared-charts-1920x1080", at<sharedCharts, 1920, 1080>}});
constexpr auto exactSizeSteps =
    std::to_array<Step>({{"148-exact-value-360x640", at<exactValue, 360, 640>},
                         {"149-exact-root-800x360", cleared<at<exactRoot, 800, 360>>},
                         {"150-exact-root-1280x800", cleared<at<exactRoot, 1280, 800>>}});
constexpr auto visits = std::to_array<Visit>({{"phone", phone, false, phoneSteps},
                                              {"dark", phone, true, darkSteps},
                                              {"tablet", tablet, false, tabletSteps},
                                              {"share", phone, false, shareSteps},
                                              {"dark-share", phone, true, darkShareSteps},
                                              {"sizes", phone, false, sizeSteps},
                                              {"dark-sizes", phone, true, darkSizeSteps},
                                              {"tablet-share", tablet, false, tabletShareSteps},
                                              {"start", phone, false, startSteps, true},
                                              {"around", phone, false, aroundSteps},
                                              {"dark-around", phone, true, darkAroundSteps},
                                              {"tablet-around", tablet, false, tabletAroundSteps},
                                              {"narrow", narrow, false, narrowSteps, true},
                                              {"low-around", low, false, lowSteps},
                                              {"wide", tablet, false, wideSteps},
                                              {"dark-wide", tablet, true, darkWideSteps},
                                              {"scale", phone, false, scaleSteps},
                                              {"charts", phone, false, chartSteps},
                                              {"dark-charts", phone, true, darkChartSteps},
                                              {"tablet-charts", tablet, false, tabletChartSteps},
                                              {"chart-sizes", phone, false, chartSizeSteps},
                                              {"dark-exact", phone, true, exactSizeSteps}});

}  // namespace

std::span<const Visit> allVisits() {
  return visits;
}

}  // namespace tavi::tour
