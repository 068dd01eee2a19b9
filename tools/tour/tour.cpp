#include "tour/tour.h"

#include <array>

#include "appearance/interface_colors.h"
#include "platform/localization.h"
#include "shell/dt_text_field.h"

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
  stage.waitForToastsToGo();
  stage.tap(QStringLiteral("menuButton"));
  waitUntil([&stage] { return stage.shows(QStringLiteral("sideMenu")); }, "the drawer is open");
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

constexpr QSize phone{412, 870};
constexpr QSize tablet{1280, 800};

constexpr auto phoneSteps = std::to_array<Step>({{"01-first-start", firstStart},
                                                 {"02-power", power},
                                                 {"03-root", root},
                                                 {"04-many-steps", manySteps},
                                                 {"05-missing-value", missingValue},
                                                 {"06-no-solution", noSolution},
                                                 {"07-wide-line", wideLine},
                                                 {"08-open-drawer", openDrawer}});
constexpr auto darkSteps = std::to_array<Step>({{"09-dark-input", typing},
                                                {"10-dark-solution", power},
                                                {"11-dark-missing-value", missingValue},
                                                {"12-dark-drawer", openDrawer}});
constexpr auto tabletSteps = std::to_array<Step>(
    {{"13-tablet-input", typing}, {"14-tablet-solution", manySteps}, {"15-tablet-drawer", openDrawer}});
constexpr auto shareSteps = std::to_array<Step>({{"16-share", shareManySteps}});
constexpr auto darkShareSteps = std::to_array<Step>({{"17-dark-share", shareWideLine}});
constexpr auto tabletShareSteps = std::to_array<Step>({{"18-tablet-share", shareNoSolution}});
constexpr auto visits = std::to_array<Visit>({{"phone", phone, false, phoneSteps},
                                              {"dark", phone, true, darkSteps},
                                              {"tablet", tablet, false, tabletSteps},
                                              {"share", phone, false, shareSteps},
                                              {"dark-share", phone, true, darkShareSteps},
                                              {"tablet-share", tablet, false, tabletShareSteps}});

}  // namespace

std::span<const Visit> allVisits() {
  return visits;
}

}  // namespace tavi::tour
