// What assistive technology sees of the window.
#include <QAccessible>
#include <QTest>
#include <algorithm>
#include <functional>

#include <private/qguiapplication_p.h>

#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include "shell/frame/alert_controller.h"
#include "shell/launch/launch_fixture.h"
#include "solution/exact/account_library.h"
#include "solution/exact/exact_sheet_controller.h"

namespace tavi {
namespace {

/// The tree as lines, two blanks deeper for each level: `role "name" states`.
void append(QStringList& lines, const QAccessibleInterface& part, int depth = 0) {
  const QAccessible::State state = part.state();
  if (state.invisible) return;
  QString role;
  QDebug(&role).nospace() << part.role();
  QStringList words{QString(2 * depth, u' ') + role.section(u':', -1),
                    u'"' + part.text(QAccessible::Name) + u'"'};
  const std::pair<bool, const char*> states[] = {{state.modal, "modal"},         {state.disabled, "disabled"},
                                                 {state.checkable, "checkable"}, {state.checked, "checked"},
                                                 {state.selected, "selected"},   {state.focused, "focused"}};
  for (const auto& [isSo, word] : states)
    if (isSo) words.append(word);
  lines.append(words.join(' '));
  for (int index = 0; index < part.childCount(); ++index)
    if (const auto* child = part.child(index)) append(lines, *child, depth + 1);
}

class AccessibilityTest : public LaunchTest {
 protected:
  AccessibilityTest() {
    setActive(true);
    for (const char* done : {"isOnboardingFinished", "isDsgvoAccepted", "isRatingAlreadyDone"})
      preferences.setValue(done, true);
    launch();
    EXPECT_TRUE(QTest::qWaitForWindowActive(delegate->window()));
    EXPECT_TRUE(QTest::qWaitFor([this] { return delegate->drawer()->view()->width() > 0; }));
  }
  ~AccessibilityTest() override { setActive(false); }

  /// As if a screen reader came or went; the public call tells the items only, and nobody of their events.
  static void setActive(bool isActive) {
    QGuiApplicationPrivate::platformIntegration()->accessibility()->setActive(isActive);
  }

  /// The part of that name that is seen, or none.
  QAccessibleInterface* part(const QString& name) {
    const std::function<QAccessibleInterface*(QAccessibleInterface*)> find = [&](QAccessibleInterface* from) {
      if (from->state().invisible) return static_cast<QAccessibleInterface*>(nullptr);
      if (from->text(QAccessible::Name) == name && from->actionInterface()) return from;
      for (int index = 0; index < from->childCount(); ++index)
        if (auto* found = find(from->child(index))) return found;
      return static_cast<QAccessibleInterface*>(nullptr);
    };
    return find(QAccessible::queryAccessibleInterface(delegate->window()));
  }

  bool has(const QString& line) {
    const QStringList lines = tree();
    return std::ranges::any_of(lines, [&line](const QString& each) { return each.trimmed() == line; });
  }

  QStringList tree() {
    QStringList lines;
    append(lines, *QAccessible::queryAccessibleInterface(delegate->window()));
    return lines;
  }
};

TEST_F(AccessibilityTest, ThePagesStandUnderTheirBars) {
  EXPECT_EQ(tree().mid(0, 10).join('\n').toStdString(), R"(Window "Tavi Solver"
  Pane ""
    Pane ""
      ToolBar ""
        Button "menuButton"
        Heading "Calculate Title"
        Button "Clear"
      PageTabList ""
        PageTab "Input" selected
        PageTab "Result" disabled)");
}

TEST_F(AccessibilityTest, AMessageIsAModalDialogWithNothingBehindIt) {
  delegate->drawer()->setLeftViewOpened(true);
  delegate->drawer()->presentAlert("Sure?", "Think again.", {{"No"}, {"Yes"}}, AlertStyle::alert);
  ASSERT_TRUE(QTest::qWaitFor([this] { return has("Button \"No\" focused"); }));
  EXPECT_EQ(tree().join('\n').toStdString(), R"(Window "Tavi Solver"
  Pane ""
  Dialog "menuButton"
    Pane ""
  Dialog "Sure?" modal
    Pane ""
      Heading "Sure?"
      StaticText "Think again."
      Button "No" focused
      Button "Yes")");
  delegate->drawer()->dismissPresented();
  EXPECT_TRUE(QTest::qWaitFor([this] { return has("ListItem \"History\""); })) << "the menu is there again";
}

TEST_F(AccessibilityTest, AnExactValueIsReadInWords) {
  const exact::AccountQuestion question{Mode::root, "3", "2", {}};
  auto sheet = std::make_shared<ExactSheetController>(question, *accountOf(question));
  sheet->setPage(engine, "solution/exact/ExactSheet.qml");
  delegate->drawer()->present(sheet);
  ASSERT_TRUE(QTest::qWaitFor([this] { return has("Button \"copyAsLatex\" focused"); }));
  EXPECT_EQ(tree().join('\n').toStdString(), R"(Window "Tavi Solver"
  Pane ""
  Dialog "exactTitle" modal
    Pane ""
      Heading "exactTitle"
      StaticText "cube root of 2"
      StaticText "is approximately 1.25992104989487 …"
      Button "exactFewerDigits" disabled
      Button "exactMoreDigits"
      Button "copyAsLatex" focused
      Button "copyAsText"
      Button "Cancel")");
}

TEST_F(AccessibilityTest, EachPartKnowsItsPlace) {
  const std::function<void(QAccessibleInterface&)> check = [&](QAccessibleInterface& part) {
    for (int index = 0; index < part.childCount(); ++index) {
      QAccessibleInterface* child = part.child(index);
      ASSERT_TRUE(child && child->parent());
      const std::string name = child->text(QAccessible::Name).toStdString();
      EXPECT_EQ(child->parent()->object(), part.object()) << name;
      EXPECT_EQ(part.indexOfChild(child), index) << name;
      EXPECT_TRUE(child->state().invisible || part.rect().contains(child->rect().center())) << name;
      check(*child);
    }
  };
  check(*QAccessible::queryAccessibleInterface(delegate->window()));
}

TEST_F(AccessibilityTest, WhatCanBePressedIsPressed) {
  part("menuButton")->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_TRUE(delegate->drawer()->isLeftViewOpened());
  delegate->drawer()->closeLeftView();
  ASSERT_TRUE(QTest::qWaitFor([this] { return part("Root") != nullptr; }));
  part("Result")->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(delegate->pageTabBarController()->selectedIndex(), 0) << "a tab that is off";
  part("Root")->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_TRUE(part("Root")->state().checked);
  EXPECT_FALSE(part("Power")->state().checked);
}

TEST_F(AccessibilityTest, AToastIsToldEachTime) {
  static QStringList told;
  told.clear();
  const auto former = QAccessible::installUpdateHandler([](QAccessibleEvent* event) {
    if (event->type() == QAccessible::Alert)
      told.append(event->accessibleInterface()->text(QAccessible::Name));
  });
  openCalculatePage().performCalculation();
  openCalculatePage().performCalculation();
  EXPECT_TRUE(has("AlertMessage \"notEnoughInputValues\""));
  QAccessible::installUpdateHandler(former);
  EXPECT_EQ(told, QStringList({"notEnoughInputValues", "notEnoughInputValues"}));
  openCalculatePage().clearAll();
  EXPECT_FALSE(has("AlertMessage \"notEnoughInputValues\"")) << "the user goes on";
}

}  // namespace
}  // namespace tavi
