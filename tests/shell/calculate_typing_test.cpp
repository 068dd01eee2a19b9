#include <QClipboard>
#include <QGuiApplication>
#include <QStringList>

#include <gtest/gtest.h>

#include "number/fatal_stop.h"
#include "shell/calculate_page.h"
#include "shell/calculate_view_controller.h"

namespace tavi {
namespace {

using namespace Qt::StringLiterals;

class CalculateTypingTest : public testing::Test {
 protected:
  CalculateViewController& controller() { return *page_.controller; }

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

TEST_F(CalculateTypingTest, KeysActAtTheCaret) {
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

TEST_F(CalculateTypingTest, AMinusAtTheStartOfASignedTextIsAFatalStopAndItsKeyOff) {
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

TEST_F(CalculateTypingTest, KeysDoNothingBeforeAFieldIsTapped) {
  controller().tappedKeypadButton("5");
  controller().tappedDeleteButton();
  EXPECT_EQ(page_.field("baseField").text(), "");
  EXPECT_EQ(controller().currentTextField, nullptr);
}

TEST_F(CalculateTypingTest, OnlyTheSelectionGoesInAFieldWithoutTheFocus) {
  page_.type("baseField", u"123");
  page_.edit("baseField", 1, 2);
  page_.field("baseField").setFocus(false);
  controller().tappedKeypadButton("5");
  EXPECT_EQ(marked(page_.field("baseField")), "1|3");
  EXPECT_EQ(page_.field("radicandField").text(), "123");
}

TEST_F(CalculateTypingTest, AChangeOfModeKeepsTextsAndTakesTheCaretAlong) {
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

TEST_F(CalculateTypingTest, HardwareKeysActAsKeypadKeys) {
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

TEST_F(CalculateTypingTest, AKeyThatTypesNothingIsTold) {
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

TEST_F(CalculateTypingTest, TypingBeginsInTheFirstFieldWithoutADefault) {
  EXPECT_FALSE(controller().isTypingPossible());
  controller().pressedHardwareKey(Qt::Key_5, Qt::NoModifier, "5");
  EXPECT_EQ(marked(page_.field("baseField")), "5|");

  page_.rebuild();
  controller().segmentedControlValueChanged(1);
  controller().pressedHardwareKey(Qt::Key_6, Qt::KeypadModifier, "6");
  EXPECT_EQ(marked(page_.field("radicandField")), "56|");
}

TEST_F(CalculateTypingTest, WhatIsPastedIsReadAsANumberOrANoticeTellsWhyNot) {
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

TEST_F(CalculateTypingTest, SelectionsAreCutAndCopied) {
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

TEST_F(CalculateTypingTest, EveryChangeCanBeUndoneAndRedone) {
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

TEST_F(CalculateTypingTest, WhatStandsTypedIsPreviewedWithAHint) {
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

}  // namespace
}  // namespace tavi
