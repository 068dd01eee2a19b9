#include "shell/calculate_view_controller.h"

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodQueryEvent>
#include <QStringList>

#include <gtest/gtest.h>

#include "appearance/interface_colors.h"
#include "number/fatal_stop.h"
#include "platform/analytics.h"
#include "platform/notification_center.h"
#include "shell/calculate_page.h"
#include "shell/frame/is_calculating.h"
#include "shell/frame/page_tab_bar_controller.h"
#include "shell/frame/toolbar_controller.h"
#include "solution/solution_view_controller.h"

namespace tavi {
namespace {

using namespace Qt::StringLiterals;

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

// The text, with | around what is selected or one | at the caret.
QString marked(const DTTextField& field) {
  const TextRange range = field.selectedTextRange().value();
  QString text = field.text();
  if (range.end > range.start) text.insert(range.end, '|');
  return text.insert(range.start, '|');
}

TextRange unmark(QString& text) {
  const qsizetype start = text.indexOf('|');
  const qsizetype last = text.lastIndexOf('|');
  text.remove('|');
  return {start, last == start ? start : last - 1};
}

TEST_F(CalculateViewControllerTest, KeysActAtTheCaret) {
  struct Case {
    const char* before;
    const char* key;  // "<" and ">" delete.
    const char* after;
  };
  const Case cases[] = {
      {"|", "7", "7|"},      {"1|2", "π", "1π|2"},  {"1|2|3", "5", "15|3"}, {"|123|", "/", "/|"},
      {"1|2", "-", "-1|2"},  {"|12", "-", "-|12"},  {"-12|", "-", "12|"},   {"2-3|", "-", "23|"},
      {"-|12", "-", "|12"},  {"1|23|", "-", "-1|"}, {"|-1|2", "-", "-|2"},  {"1-|2-3", "-", "1|23"},
      {"1|2|3", "<", "1|3"}, {"12|3", "<", "1|3"},  {"|123", "<", "|123"},  {"|12|3", "<", "|3"},
      {"π|", "<", "|"},      {"|", "<", "|"},       {"-|1", "<", "|1"},     {"1|.5", ".", "1.|.5"},
      {"1|2", ">", "1|"},    {"12|", ">", "12|"},   {"|12|3", ">", "|3"},   {"|-1", ">", "|1"},
  };
  for (const Case& each : cases) {
    for (const auto& [name, twin] :
         {std::pair("baseField", "radicandField"), std::pair("indexField", "exponentField")}) {
      QString text = QString::fromUtf8(each.before);
      const TextRange range = unmark(text);
      page_.field(name).setText(text);
      page_.field(twin).setText(text);
      const DTTextField& field = page_.edit(name, range.start, range.end);
      if (*each.key == '<') {
        controller().tappedDeleteButton();
      } else if (*each.key == '>') {
        controller().pressedHardwareKey(Qt::Key_Delete, Qt::NoModifier, "\x7f");
      } else {
        controller().tappedKeypadButton(QString::fromUtf8(each.key));
      }
      EXPECT_EQ(marked(field), QString::fromUtf8(each.after)) << each.before << " key " << each.key;
      EXPECT_EQ(page_.field(twin).text(), field.text()) << each.before << " key " << each.key;
    }
  }
}

TEST_F(CalculateViewControllerTest, AMinusAtTheStartOfASignedTextIsAFatalStopAndItsKeyOff) {
  struct Case {
    const char* text;
    bool isKeyEnabled;
  };
  const Case cases[] = {{"|-12", false}, {"|1-2", false}, {"|1|-2", false}, {"|-1|2", true},
                        {"-|12", true},  {"|12", true},   {"-12|", true}};
  for (const Case& each : cases) {
    QString text = each.text;
    const TextRange range = unmark(text);
    page_.field("baseField").setText(text);
    page_.edit("baseField", range.start, range.end);
    EXPECT_EQ(controller().isMinusKeyEnabled(), each.isKeyEnabled) << each.text;
    controller().pressedHardwareKey(Qt::Key_Minus, Qt::NoModifier, "-");
    if (each.isKeyEnabled) continue;
    EXPECT_EQ(page_.field("baseField").text(), text) << each.text;
    EXPECT_THROW(controller().tappedKeypadButton("-"), FatalStop) << each.text;
  }
  EXPECT_THROW(controller().tappedKeypadButton(""), FatalStop);
}

TEST_F(CalculateViewControllerTest, KeysDoNothingBeforeAFieldIsTapped) {
  controller().tappedKeypadButton("5");
  controller().tappedDeleteButton();
  EXPECT_EQ(page_.field("baseField").text(), "");
  EXPECT_EQ(controller().currentTextField, nullptr);
}

TEST_F(CalculateViewControllerTest, OnlyTheSelectionGoesInAFieldWithoutTheFocus) {
  page_.type("baseField", u"123");
  page_.edit("baseField", 1, 2);
  page_.field("baseField").setFocus(false);
  controller().tappedKeypadButton("5");
  EXPECT_EQ(marked(page_.field("baseField")), "1|3");
  EXPECT_EQ(page_.field("radicandField").text(), "123");
}

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

TEST_F(CalculateViewControllerTest, AChangeOfModeKeepsTextsAndTakesTheCaretAlong) {
  page_.type("exponentField", u"1/2");
  page_.edit("exponentField", 1, 3);
  controller().segmentedControlValueChanged(1);
  EXPECT_FALSE(controller().modeAView->isVisible());
  EXPECT_TRUE(controller().modeBView->isVisible());
  EXPECT_EQ(controller().currentTextField, &page_.field("indexField"));
  EXPECT_EQ(marked(page_.field("indexField")), "1|/2|");
  controller().tappedKeypadButton("0");
  EXPECT_EQ(page_.field("exponentField").text(), "10");
}

TEST_F(CalculateViewControllerTest, HardwareKeysActAsKeypadKeys) {
  page_.field("baseField").forceActiveFocus();
  for (const QChar typed : u"1.,3/p-Xy5"_s) {
    controller().pressedHardwareKey(Qt::Key_unknown, Qt::NoModifier, QString(typed));
  }
  EXPECT_EQ(page_.field("baseField").text(), u"-1..3/πxy5");
  EXPECT_TRUE(controller().pressedHardwareKey(Qt::Key_Backspace, Qt::NoModifier, "\b"));
  EXPECT_EQ(page_.field("baseField").text(), u"-1..3/πxy");
  for (const QChar typed : u"(+e ä"_s) {
    EXPECT_FALSE(controller().pressedHardwareKey(Qt::Key_unknown, Qt::NoModifier, QString(typed)));
    EXPECT_EQ(controller().notice(), "hintKey");
  }
  EXPECT_FALSE(controller().pressedHardwareKey(Qt::Key_Y, Qt::AltModifier, "y"));
  EXPECT_FALSE(controller().pressedHardwareKey(Qt::Key_Tab, Qt::NoModifier, "\t"));
  EXPECT_EQ(page_.field("baseField").text(), u"-1..3/πxy");
}

TEST_F(CalculateViewControllerTest, AKeyThatTypesNothingIsTold) {
  const auto type = [this](QStringView text) {
    for (const QChar typed : text) controller().pressedHardwareKey(Qt::Key_unknown, {}, QString(typed));
  };
  type(u"3+4");
  EXPECT_EQ(controller().notice(), "hintKey");
  controller().tappedDeleteButton();
  EXPECT_EQ(controller().notice(), "");
  type(u"÷२３^-5");
  EXPECT_EQ(page_.field("baseField").text(), "3/23");
  EXPECT_EQ(marked(page_.field("exponentField")), "-5|");
  EXPECT_EQ(controller().notice(), "");
  controller().pressedHardwareKey(Qt::Key_Dead_Circumflex, {}, "");
  EXPECT_EQ(controller().notice(), "");
  type(u"^");
  EXPECT_EQ(controller().notice(), "hintKey");
}

TEST_F(CalculateViewControllerTest, TypingBeginsInTheFirstFieldWithoutADefault) {
  EXPECT_FALSE(controller().isTypingPossible());
  controller().pressedHardwareKey(Qt::Key_5, Qt::NoModifier, "5");
  EXPECT_EQ(marked(page_.field("baseField")), "5|");

  page_.rebuild();
  controller().segmentedControlValueChanged(1);
  controller().pressedHardwareKey(Qt::Key_6, Qt::KeypadModifier, "6");
  EXPECT_EQ(marked(page_.field("radicandField")), "56|");
}

TEST_F(CalculateViewControllerTest, WhatIsPastedIsReadAsANumberOrANoticeTellsWhyNot) {
  struct Case {
    const char* before;
    const char* pasted;
    const char* after;
    const char* notice;
  };
  const Case cases[] = {
      {"|", "2×10^3", "2000|", ""},
      {"1|2|3", "45", "145|3", ""},
      {"|12|", "−3⁄4", "-3/4|", ""},
      {"|1", "-2", "-2|1", ""},
      {"1|", "-2", "1|", "hintPasteMinus"},
      {"|-1", "2", "|-1", "hintPasteMinus"},
      {"1/2|", "3/4", "1/2|", "hintOneBar"},
      {"7|", "some words", "7|", "hintPaste"},
      {"2|", "½", "5/2|", ""},
      {"|3|7", "π/2", "π/2|7", ""},
      {"3|", "/4", "3/4|", ""},
      {"/|", "4", "/4|", ""},
  };
  for (const Case& each : cases) {
    QString text = QString::fromUtf8(each.before);
    const TextRange range = unmark(text);
    page_.field("baseField").setText(text);
    page_.edit("baseField", range.start, range.end);
    QGuiApplication::clipboard()->setText(QString::fromUtf8(each.pasted));
    EXPECT_TRUE(controller().pressedHardwareKey(Qt::Key_V, Qt::ControlModifier, ""));
    EXPECT_EQ(marked(page_.field("baseField")), QString::fromUtf8(each.after)) << each.pasted;
    EXPECT_EQ(controller().notice(), each.notice) << each.pasted;
  }
  controller().tappedKeypadButton("8");
  EXPECT_EQ(controller().notice(), "");

  QGuiApplication::clipboard()->setText("(3/2)^-2");
  controller().paste();
  EXPECT_EQ(page_.field("baseField").text(), "3/2");
  EXPECT_EQ(page_.field("indexField").text(), "-2");
  controller().segmentedControlValueChanged(1);
  controller().paste();
  EXPECT_EQ(controller().notice(), "hintPastePower");
}

TEST_F(CalculateViewControllerTest, SelectionsAreCutAndCopied) {
  page_.type("baseField", u"123");
  page_.edit("baseField", 1, 3);
  controller().pressedHardwareKey(Qt::Key_C, Qt::ControlModifier, "");
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "23");
  controller().pressedHardwareKey(Qt::Key_A, Qt::ControlModifier, "");
  controller().pressedHardwareKey(Qt::Key_X, Qt::ControlModifier, "");
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "123");
  EXPECT_EQ(page_.field("radicandField").text(), "");
  controller().pressedHardwareKey(Qt::Key_X, Qt::ControlModifier, "");
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "123");
}

TEST_F(CalculateViewControllerTest, EveryChangeCanBeUndoneAndRedone) {
  const auto state = [this] {
    const DTTextField* field = controller().currentTextField;
    return page_.field("baseField").text() + "^" + page_.field("indexField").text() + " " +
           (field ? field->accessibilityIdentifier + " " + marked(*field) : "");
  };
  QStringList states;
  const auto step = [&](const auto& change) {
    states.append(state());
    change();
  };
  page_.edit("baseField", 0, 0);
  step([&] { controller().tappedKeypadButton("1"); });
  step([&] { controller().tappedKeypadButton("-"); });
  page_.edit("exponentField", 0, 0);
  step([&] { controller().tappedKeypadButton("2"); });
  step([&] { controller().tappedDeleteButton(); });
  QGuiApplication::clipboard()->setText("5^3");
  step([&] { controller().paste(); });
  step([&] { controller().clearAll(); });
  const QString last = state();
  for (qsizetype i = states.size() - 1; i >= 0; --i) {
    controller().pressedHardwareKey(Qt::Key_Z, Qt::ControlModifier, "");
    EXPECT_EQ(state(), states[i]);
  }
  controller().undo();
  EXPECT_EQ(state(), states.front());
  for (qsizetype i = 1; i < states.size(); ++i) {
    controller().pressedHardwareKey(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier, "");
    EXPECT_EQ(state(), states[i]);
  }
  controller().pressedHardwareKey(Qt::Key_Y, Qt::ControlModifier, "");
  EXPECT_EQ(state(), last);
  controller().tappedKeypadButton("7");
  controller().redo();
  EXPECT_EQ(page_.field("exponentField").text(), "7");
}

TEST_F(CalculateViewControllerTest, WhatStandsTypedIsPreviewedWithAHint) {
  EXPECT_EQ(controller().preview().hint, "hintTapField");
  page_.edit("baseField", 0, 0);
  EXPECT_EQ(controller().preview().hint, "hintBaseAndExponent");
  struct Case {
    int mode;
    const char* first;
    const char* second;
    const char* latex;
    const char* hint;
  };
  const Case cases[] = {
      {0, "-2", "3/2", R"(\frac{3}{2}^{-2})", ""},
      {0, "", "3", R"(3^{\;\color{#8e8e93}{□}})", "hintExponent"},
      {1, "", "9", R"(\sqrt[2]{9})", ""},
      {0, "10001", "2", "2^{10001}", "hintTooLong"},
      {0, "2", "1.000001/3", R"(\frac{1.000001}{3}^{2})", "hintOutOfRange"},
      {0, "40", "2", "2^{40}", "hintInfinite"},
      {0, "39", "2", "2^{39}", ""},
      {0, "-2", "0", "0^{-2}", "hintDividesByZero"},
      {1, "0", "4", R"(\sqrt[0]{4})", "hintDividesByZero"},
      {7, "2", "2", "", ""},
  };
  for (const Case& each : cases) {
    controller().selectMode(each.mode);
    for (const char* name : {"exponentField", "indexField"}) page_.field(name).setText(each.first);
    for (const char* name : {"baseField", "radicandField"}) page_.field(name).setText(each.second);
    const TaskPreview preview = controller().preview();
    EXPECT_EQ(preview.latex, QString::fromUtf8(each.latex)) << each.second;
    EXPECT_EQ(preview.hint, each.hint) << each.second;
  }
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
