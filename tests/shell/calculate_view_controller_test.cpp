#include "shell/calculate_view_controller.h"

#include <QAccessible>
#include <QInputMethodQueryEvent>
#include <QStringList>

#include <gtest/gtest.h>

#include "appearance/interface_colors.h"
#include "number/fatal_stop.h"
#include "platform/analytics.h"
#include "shell/calculate_page.h"
#include "shell/frame/is_calculating.h"
#include "shell/frame/page_tab_bar_controller.h"
#include "shell/frame/toolbar_controller.h"
#include "solution/solution_view_controller.h"

namespace tavi {
namespace {

class CalculateViewControllerTest : public testing::Test {
 protected:
  CalculateViewControllerTest() {
    Analytics::clearRecentEvents();
    Analytics::setSink([this](const AnalyticsEvent& event) { events_.append(event.name); });
  }
  ~CalculateViewControllerTest() override { Analytics::setSink({}); }

  CalculateViewController& controller() { return *page_.controller; }

  QStringList events_;
  CalculatePage page_;
};

TEST_F(CalculateViewControllerTest, NothingMovesWhileACalculationRuns) {
  page_.type("baseField", u"12");
  isCalculating = true;
  controller().tappedKeypadButton("5");
  controller().tappedDeleteButton();
  page_.field("baseField").setBorderColor(Qt::red);
  controller().clearAll();
  controller().tappedCalculateButton();
  isCalculating = false;
  EXPECT_EQ(page_.field("baseField").text(), "12");
  EXPECT_EQ(page_.field("baseField").borderColor(), InterfaceColor::fieldNeutral());
  EXPECT_EQ(events_, QStringList{"tapped_clear"});
}

TEST_F(CalculateViewControllerTest, ASystemKeyboardIsNeverAskedFor) {
  page_.field("baseField").forceActiveFocus();
  QInputMethodQueryEvent query(Qt::ImEnabled);
  QCoreApplication::sendEvent(page_.window.activeFocusItem(), &query);
  EXPECT_FALSE(query.value(Qt::ImEnabled).toBool());
}

TEST_F(CalculateViewControllerTest, ASolutionIsRecordedThenShownThenLogged) {
  auto solution = std::make_shared<SolutionViewController>();
  auto own = std::shared_ptr<CalculateViewController>(std::move(page_.controller));
  AppPageTabBarController tabs({own, solution});
  AppToolbarController toolbar(std::shared_ptr<ViewController>(&tabs, [](auto*) {}));
  toolbar.beginAppearance();
  page_.controller = nullptr;

  const auto base = own->view()->findChild<DTTextField*>("baseField");
  const auto exponent = own->view()->findChild<DTTextField*>("exponentField");
  base->setText("3/2");
  exponent->setText("-2");
  qsizetype recordsWhenShown = -1;
  bool isLoggedWhenShown = true;
  QObject::connect(&tabs, &AppPageTabBarController::selectedIndexChanged, [&] {
    if (tabs.selectedIndex() != 1) return;
    recordsWhenShown = page_.store.calculations().size();
    isLoggedWhenShown = events_.contains("tavi_calculate");
    EXPECT_TRUE(isCalculating);
  });
  EXPECT_TRUE(own->performCalculation());
  EXPECT_EQ(recordsWhenShown, 1);
  EXPECT_FALSE(isLoggedWhenShown);
  EXPECT_EQ(events_, QStringList{"tavi_calculate"});
  EXPECT_EQ(tabs.selectedIndex(), 1);
  EXPECT_GT(solution->solutionSteps().size(), 3U);

  EXPECT_FALSE(isCalculating);
  EXPECT_FALSE(page_.operation.withFraction);
  EXPECT_TRUE(page_.output.solutionSteps.empty());
  EXPECT_EQ(page_.output.solutionStepCounter, 0);

  const Calculation& record = page_.store.calculation(0);
  EXPECT_EQ(record.latexString.toStdString(), *solution->solutionSteps().front().latexString);
  EXPECT_EQ(record.inputParameters, (QMap<QString, QString>{{"aTextField", "-2"}, {"xTextField", "3/2"}}));
  EXPECT_EQ(record.setupParameter.value("inputCalculationSelection"), 0);
  EXPECT_EQ(record.setupParameter.value("appKey"), "QRX");
  EXPECT_TRUE(record.solutionSteps.isEmpty());

  own->clearAll();
  EXPECT_TRUE(solution->solutionSteps().empty());
  EXPECT_EQ(tabs.selectedIndex(), 0);
  EXPECT_EQ(base->text(), "");
  EXPECT_FALSE(page_.store.currentCalculation());
  EXPECT_EQ(toolbar.toolbar()->rightViews().front()->accessibilityIdentifier, "toolbarRemoveButton");
}

TEST_F(CalculateViewControllerTest, RejectedInputIsToldAndLeavesTheHistory) {
  struct Case {
    int mode;
    const char* first;
    const char* second;
    const char* key;
    const char* marked;  // Which of exponent, base, index and radicand.
    char caret;          // In which of them the user goes on,
    int place = -1;      // and where, if not at the end of its text.
  };
  const Case cases[] = {
      {0, "", "", "notEnoughInputValues", "ebir", 'b'},
      {0, "", "3", "notEnoughInputValues", "e i ", 'e'},
      {1, "", "", "notEnoughInputValues", " b r", 'r'},
      {0, "1/", "3", "fractionIncomplete", "e i ", 'e'},
      {0, "2", "/3", "fractionIncomplete", " b r", 'b', 0},
      {0, "2", "π/3/4", "inputParameterError", " b r", 'b', 4},
      {0, "2", "1/0", "inputZeroInDenominator", " b r", 'b'},
      {0, "2", "π2", "naturalConstantInWrongPositionOfSubstring", " b r", 'b'},
      {0, "10001", "1.5", "calculationTooLong", "e i ", 'e'},
      {1, "1/10001", "2", "calculationTooLong", "e i ", 'i'},
      {0, "365", "1.01", "calculationOutOfRange", "ebir", 'b'},
      {0, "2", "1.000001/3", "calculationOutOfRange", "ebir", 'b'},
      {0, "99999999999999999999", "2", "calculationOutOfRange", "ebir", 'b'},
  };
  for (const Case& each : cases) {
    controller().segmentedControlValueChanged(each.mode);
    page_.toasts.clear();
    for (const char* name : {"exponentField", "indexField"}) page_.field(name).setText(each.first);
    for (const char* name : {"baseField", "radicandField"})
      page_.field(name).setText(QString::fromUtf8(each.second));
    EXPECT_FALSE(controller().performCalculation()) << each.key;
    EXPECT_EQ(controller().currentTextField->objectName().front(), each.caret) << each.key;
    const DTTextField& current = *controller().currentTextField;
    EXPECT_EQ(current.selectedTextRange()->start, each.place < 0 ? current.text().size() : each.place)
        << each.key;
    EXPECT_EQ(page_.toasts.size(), 1) << each.key;
    std::string marked;
    for (const char* name : {"exponentField", "baseField", "indexField", "radicandField"}) {
      const bool isMarked = page_.field(name).borderColor() != InterfaceColor::fieldNeutral();
      marked += isMarked ? *name : ' ';
      EXPECT_EQ(page_.field(name).faultWords().isEmpty(), !isMarked) << each.key;
    }
    EXPECT_EQ(marked, each.marked) << each.key;
    EXPECT_FALSE(isCalculating);
  }
  EXPECT_TRUE(page_.store.calculations().isEmpty());
  EXPECT_EQ(events_, QStringList(std::size(cases), "tavi_got_error"));
}

// What assistive technology is told of an item and of all below it, a line each.
QStringList told(const QAccessibleInterface& item) {
  QStringList lines;
  if (const QString name = item.text(QAccessible::Name); !name.isEmpty()) {
    const QAccessible::State state = item.state();
    const QString description = item.text(QAccessible::Description);
    lines.append(name + (state.checkable ? state.checked ? " +" : " -" : "") +
                 (description.isEmpty() ? "" : " (" + description + ")"));
  }
  for (int i = 0; i < item.childCount(); ++i) {
    if (!item.child(i)->state().invisible) lines += told(*item.child(i));
  }
  return lines;
}

TEST_F(CalculateViewControllerTest, AssistiveTechnologyIsToldModeFieldsAndFaults) {
  page_.type("baseField", u"9/");
  page_.type("exponentField", u"2");
  EXPECT_FALSE(controller().performCalculation());
  const QStringList expected = {"Kind of task",
                                "Power +",
                                "Root -",
                                "manualButton",
                                "Fill in your given numbers:",
                                "Base (Invalid entry: fractionIncomplete)",
                                "Exponent"};
  EXPECT_EQ(told(*QAccessible::queryAccessibleInterface(&page_.window)).first(expected.size()), expected);
  page_.type("baseField", u"1/");
  EXPECT_FALSE(controller().performCalculation());
  EXPECT_EQ(page_.field("baseField").faultWords(), "hintOneBar") << "more than that it is no number";
}

TEST_F(CalculateViewControllerTest, AnEmptyRootIndexIsASquareRootAndStoredEmpty) {
  controller().segmentedControlValueChanged(1);
  page_.type("radicandField", u"9");
  EXPECT_TRUE(controller().performCalculation());
  const Calculation& record = page_.store.calculation(0);
  EXPECT_EQ(record.latexString, R"(\sqrt[2]{9})");
  EXPECT_EQ(record.inputParameters.value("aTextField", "absent"), "");
  EXPECT_EQ(record.setupParameter.value("inputCalculationSelection"), 1);
}

TEST_F(CalculateViewControllerTest, AHiddenFieldCountsAsEmpty) {
  page_.type("baseField", u"9");
  page_.type("exponentField", u"2");
  page_.field("baseField").setHidden(true);
  page_.field("radicandField").setHidden(true);
  EXPECT_FALSE(controller().performCalculation());
}

TEST_F(CalculateViewControllerTest, ANewPageIsFilledFromTheSnapshotOrThePickedRecord) {
  page_.type("baseField", u"3/2");
  page_.rebuild();
  EXPECT_EQ(page_.field("baseField").text(), "3/2");
  EXPECT_EQ(page_.field("radicandField").text(), "3/2");
  EXPECT_EQ(page_.store.currentCalculation()->inputParameters,
            (QMap<QString, QString>{{"xTextField", "3/2"}}));

  page_.store.setCurrentSelectedCalculation(Calculation(
      {{"aTextField", "4"}}, "", {}, {{"inputCalculationSelection", qlonglong{1}}, {"appKey", "QRX"}}));
  CalcManager restarted(page_.preferences);
  EXPECT_TRUE(restarted.currentSelectedCalculation());
  page_.rebuild();
  EXPECT_TRUE(controller().modeBView->isVisible());
  EXPECT_EQ(page_.field("indexField").text(), "4");
  EXPECT_EQ(page_.field("exponentField").text(), "4");
  EXPECT_EQ(page_.field("radicandField").text(), "");
  EXPECT_FALSE(page_.store.currentSelectedCalculation());
  EXPECT_FALSE(CalcManager(page_.preferences).currentSelectedCalculation());
}

TEST_F(CalculateViewControllerTest, AStoredModeIsAnIntegerButNeedNotBeAMode) {
  page_.store.setCurrentSelectedCalculation(
      Calculation({{"xTextField", "4"}}, "", {}, {{"inputCalculationSelection", qlonglong{1} << 40}}));
  page_.rebuild();
  EXPECT_FALSE(controller().modeAView->isVisible());
  EXPECT_FALSE(controller().modeBView->isVisible());

  page_.store.setCurrentSelectedCalculation(Calculation({}, "", {}, {{"inputCalculationSelection", "1"}}));
  EXPECT_THROW(page_.rebuild(), FatalStop);
}

TEST_F(CalculateViewControllerTest, ClearingWithoutTabsIsToldToWhoeverHoldsTheSolution) {
  int told = 0;
  page_.notifications.observe(SolutionViewController::clearCurrentCalculation, &controller(),
                              [&told] { ++told; });
  page_.type("baseField", u"12");
  controller().clearAll();
  EXPECT_EQ(told, 1);
  EXPECT_EQ(page_.field("radicandField").text(), "");
  page_.rebuild();
  EXPECT_EQ(page_.field("baseField").text(), "");
}

}  // namespace
}  // namespace tavi
