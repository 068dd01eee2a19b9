// The rows of a working read aloud, by a voice that notes what it is given.
#include <QAccessible>
#include <functional>

#include "shell/frame/alert_controller.h"
#include "solution/solution_stage.h"

namespace tavi {
namespace {

class ReadingTest : public SolutionStage {
 protected:
  ReadingTest() { setVoice(Voice::State::Ready); }

  void setVoice(Voice::State state) {
    voice = std::make_shared<FakeVoice>(state);
    reader.setVoice(voice);
  }
  void showThree() {
    show({formulaStep("Your Input", "\\frac{3}{4}"), formulaStep("Step", "2"), formulaStep("Result", "=x")});
  }
  std::vector<int> markedRows() {
    window.grabWindow();
    std::vector<int> marked;
    for (QQuickItem* cell : cells())
      if (const auto* mark = cell->findChild<QQuickItem*>("readingMark"); mark && mark->isVisible())
        marked.push_back(cell->property("index").toInt());
    return marked;
  }

  Reader& reader = *solution->reader();
  std::shared_ptr<FakeVoice> voice;
};

TEST_F(ReadingTest, GoesFromRowToRowMarksEachAndEndsBehindTheLast) {
  show({formulaStep("Your Input", "\\frac{3}{4}"), formulaStep("", ""), formulaStep("Result", "=x")},
       {{std::make_shared<UnitCircleChartData>(450, 7.853981633974483, 90, 1, Quadrant::first)}});
  reader.readFrom(0);
  EXPECT_EQ(markedRows(), std::vector<int>{0});
  emit voice->ended(true);
  EXPECT_EQ(markedRows(), std::vector<int>{2}) << "nothing to say in the row between";
  emit voice->ended(true);
  emit voice->ended(true);
  EXPECT_FALSE(reader.isReading());
  EXPECT_TRUE(markedRows().empty());
  ASSERT_EQ(voice->said.size(), 3);
  EXPECT_EQ(voice->said[0], "Your Input, 3 over 4");
  EXPECT_EQ(voice->said[1], QAccessible::queryAccessibleInterface(cells().at(2))->text(QAccessible::Name));
  EXPECT_EQ(voice->said[2], cells().at(3)->findChild<QQuickItem*>("chart")->property("words").toString());

  reader.readFrom(0);
  emit voice->ended(false);
  EXPECT_FALSE(reader.isReading()) << "what cannot be said ends it";
}

TEST_F(ReadingTest, ARowComesIntoSightWhenItIsRead) {
  show(SolutionSteps(40, formulaStep("Step", "1")));
  reader.readFrom(30);
  EXPECT_EQ(markedRows(), std::vector<int>{30});
  const std::vector<QQuickItem*> made = cells();
  const auto row =
      std::ranges::find(made, 30, [](const QQuickItem* cell) { return cell->property("index").toInt(); });
  ASSERT_NE(row, made.end());
  EXPECT_GE((*row)->mapToItem(&table(), {}).y(), 0);
  EXPECT_LE((*row)->mapToItem(&table(), {0, (*row)->height()}).y(), table().height());
}

TEST_F(ReadingTest, TheKeyboardBeginsPausesAndMovesOn) {
  showThree();
  QTest::keyClick(&window, Qt::Key_R);
  EXPECT_EQ(reader.row(), 0);
  QTest::keyClick(&window, Qt::Key_Down);
  EXPECT_EQ(reader.row(), 1);
  QTest::keyClick(&window, Qt::Key_R);
  EXPECT_FALSE(reader.isReading());
  EXPECT_EQ(voice->stops, 1);
  QTest::keyClick(&window, Qt::Key_R);
  EXPECT_EQ(reader.row(), 1) << "on where it stopped";
  QTest::keyClick(&window, Qt::Key_Up);
  EXPECT_EQ(reader.row(), 0);
  EXPECT_EQ(voice->said.size(), 4);
}

TEST_F(ReadingTest, EndsWithWhatTheWorkingIsLeftBy) {
  const std::pair<const char*, std::function<void()>> ways[] = {
      {"Escape",
       [this] {
         QTest::keyClick(&window, Qt::Key_Escape);
         EXPECT_EQ(tabs->selectedIndex(), 1) << "it does not lead back as well";
       }},
      {"the button",
       [this] {
         auto* button = solution->view()->findChild<QQuickItem*>("stopReadingButton");
         window.grabWindow();
         QTest::mouseClick(&window, Qt::LeftButton, {}, button->mapToScene({20, 20}).toPoint());
       }},
      {"a message", [this] { solution->presentAlert(QStringLiteral("?"), {}, {}, {}); }},
      {"a new solution",
       [this] {
         root->dismissPresented();
         showThree();
       }},
      {"the other tab", [this] { tabs->select(0); }},
      {"no solution", [this] { solution->handleClearAllButton(); }},
  };
  for (const auto& [name, act] : ways) {
    showThree();
    reader.readFrom(1);
    const int stops = voice->stops;
    act();
    EXPECT_FALSE(reader.isReading()) << name;
    EXPECT_EQ(voice->stops, stops + 1) << name;
  }
}

TEST_F(ReadingTest, IsOfferedWhereThereMayBeAVoice) {
  struct Case {
    Voice::State state;
    bool isShown;
    bool isEnabled;
  };
  for (const Case& each : {Case{Voice::State::Missing, false, false},
                           Case{Voice::State::Unknown, true, false}, Case{Voice::State::Ready, true, true}}) {
    setVoice(each.state);
    showThree();
    QTest::keyClick(&window, Qt::Key_Down);
    QTest::keyClick(&window, Qt::Key_Menu);
    QQuickItem* entry = nullptr;
    ASSERT_TRUE(QTest::qWaitFor([&] { return (entry = menuEntry("copyRowLatex")) != nullptr; }));
    entry = menuEntry("readRowAloud");
    EXPECT_EQ(entry != nullptr, each.isShown);
    EXPECT_EQ(entry && entry->isEnabled(), each.isEnabled);
    EXPECT_EQ(voice->preparations, 1);
    if (each.isEnabled) {
      QMetaObject::invokeMethod(entry, "triggered");
      EXPECT_EQ(reader.row(), 0);
      ASSERT_TRUE(QTest::qWaitFor([&] { return menuEntry("copyRowLatex") == nullptr; }));
      QTest::keyClick(&window, Qt::Key_Menu);
      ASSERT_TRUE(QTest::qWaitFor([&] { return menuEntry("copyRowLatex") != nullptr; }));
    }
    QTest::keyClick(&window, Qt::Key_Escape);
    ASSERT_TRUE(QTest::qWaitFor([&] { return menuEntry("copyRowLatex") == nullptr; }));
    EXPECT_EQ(reader.isReading(), each.isEnabled) << "only the menu was closed";
    reader.stop();
  }
}

TEST_F(ReadingTest, ReadersShareAVoiceAndItsEndsAreOfTheOneThatReads) {
  showThree();
  {
    Reader other([](int) { return QString("words"); });
    other.setVoice(voice);
    reader.readFrom(0);
    emit voice->ended(true);
    EXPECT_EQ(reader.row(), 1);
    EXPECT_FALSE(other.isReading());
  }
  EXPECT_EQ(voice->stops, 0) << "who reads nothing stops nothing";
  emit voice->ended(false);
  EXPECT_FALSE(reader.isReading());
}

TEST_F(ReadingTest, WaitsForTheVoiceUnlessStoppedBefore) {
  struct Case {
    Voice::State found;
    bool isStopped;
    int row;
  };
  for (const Case& each : {Case{Voice::State::Ready, false, 1}, Case{Voice::State::Ready, true, -1},
                           Case{Voice::State::Missing, false, -1}}) {
    setVoice(Voice::State::Unknown);
    showThree();
    reader.readFrom(1);
    EXPECT_FALSE(reader.isReading());
    if (each.isStopped) reader.stop();
    voice->setState(each.found);
    EXPECT_EQ(reader.row(), each.row);
    reader.stop();
  }
}

}  // namespace
}  // namespace tavi
