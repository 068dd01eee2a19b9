// The solution page as it is laid out and as assistive technology is told of it.
#include <QAccessible>
#include <QClipboard>
#include <QMimeData>
#include <QSignalSpy>
#include <functional>

#include "appearance/formula_scale.h"
#include "platform/localization.h"
#include "platform/preferences.h"
#include "shell/frame/view_manager.h"
#include "solution/exact/account_library.h"
#include "solution/exact/exact_sheet_controller.h"
#include "solution/solution_stage.h"

namespace tavi {
namespace {

class SolutionPageTest : public SolutionStage {
 protected:
  void knowVideos(const QStringList& identifiers) {
    QJsonArray links;
    for (const QString& each : identifiers)
      links.append("https://" + ProjectSettings::shared().videoHost + "/watch?v=" + each);
    RemoteConfigSettings settings;
    settings.defaults = {{"videoTutorials", QJsonObject{{"QRX", QJsonObject{{"en", links}}}}}};
    remoteConfigManager.loadVideoTutorials(RemoteConfigService(settings, folder.filePath("known.sqlite")));
  }
};

TEST_F(SolutionPageTest, ARowGrowsWhereItsFormulaWouldBeCut) {
  std::string tower = "1";
  for (int i = 0; i < 6; ++i) tower = "\\frac{1}{" + tower + "}";
  show({formulaStep("Result", tower)});
  const auto* row = cells().at(0);
  const auto* label = row->findChild<QQuickItem*>("formula");
  ASSERT_TRUE(label);
  EXPECT_GT(row->height(), 100);
  EXPECT_EQ(label->height(), label->implicitHeight());
  const QRectF placed = label->mapRectToItem(row, QRectF(0, 0, label->width(), label->height()));
  EXPECT_GE(placed.top(), 12);
  EXPECT_LE(placed.bottom(), row->height());
}

TEST_F(SolutionPageTest, TheResultOffersTheExactValueAndFalseLinesAreMarked) {
  const SolutionSteps steps{formulaStep("Your Input", "9^{13}"), formulaStep("", "=\\infty"),
                            formulaStep("Result", "9^{13} = \\infty")};
  show(steps);
  for (QQuickItem* cell : cells()) EXPECT_FALSE(cell->findChild<QQuickItem*>("exactButton"));
  SolutionViewController::showSolution(tabs.get(), steps, ChartRows{}, QStringLiteral("qrx_info"),
                                       std::nullopt, 100, exact::AccountQuestion{Mode::power, "13", "9", {}});
  // Known some time after the working was seen.
  ASSERT_TRUE(QTest::qWaitFor([this] {
    window.grabWindow();
    return solution->marks().size() == 3;
  }));
  EXPECT_EQ(solution->marks(), (QVariantList{false, true, true}));
  window.grabWindow();
  std::vector<bool> marked;
  for (QQuickItem* cell : cells()) marked.push_back(cell->findChild<QQuickItem*>("mark")->isVisible());
  EXPECT_EQ(marked, (std::vector<bool>{false, true, true}));

  auto* button = cells().back()->findChild<QQuickItem*>("exactButton");
  ASSERT_TRUE(button);
  EXPECT_GE(std::min(button->width(), button->height()), 48);
  const auto* share = solution->view()->findChild<QQuickItem*>("shareButton");
  EXPECT_LT(button->mapToScene({button->width(), 0}).x(), share->mapToScene({0, 0}).x())
      << "never beneath it";
  button->forceActiveFocus();
  QTest::keyClick(&window, Qt::Key_Return);
  auto* sheet = qobject_cast<ExactSheetController*>(root->presentedController());
  ASSERT_TRUE(sheet);
  EXPECT_EQ(sheet->value(), QStringLiteral("9^{13} = 2541865828329"));
  EXPECT_EQ(sheet->decimal(), QString());
  ASSERT_EQ(sheet->sentences().size(), 1);
  sheet->copyText();
  EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("2541865828329"));
  solution->handleClearAllButton();
  EXPECT_TRUE(solution->marks().isEmpty() && !solution->hasExactValue());
}

TEST(ExactSheet, ShowsAsManyDigitsAsWanted) {
  const exact::AccountQuestion question{Mode::root, "", "2", {}};
  ExactSheetController sheet(question, *accountOf(question));
  EXPECT_EQ(sheet.decimal(), QStringLiteral("\\approx 1.41421356237310\\ldots"));
  EXPECT_FALSE(sheet.hasFewerDigits());
  for (int i = 0; i < 6; ++i) sheet.showMoreDigits();
  EXPECT_GT(sheet.decimal().size(), 1000);
  EXPECT_FALSE(sheet.hasMoreDigits());
  for (int i = 0; i < 6; ++i) sheet.showFewerDigits();
  EXPECT_EQ(sheet.decimal(), QStringLiteral("\\approx 1.41421356237310\\ldots"));
  // The note has its three formulas among its words, the last in one piece with the full stop behind it.
  QStringList formulas;
  const QVariantList pieces = sheet.sentences().constFirst().toMap()["pieces"].toList();
  for (const QVariant& piece : pieces)
    if (const QVariantMap part = piece.toList().constFirst().toMap(); part.contains("formula"))
      formulas.append(part["formula"].toString());
  EXPECT_EQ(formulas, QStringList({"x^{2} = 2", "\\sqrt{2}", "-\\sqrt{2}"}));
  EXPECT_EQ(pieces.constLast().toList().constLast().toMap(), (QVariantMap{{"word", "."}}));
  EXPECT_EQ(pieces.constLast().toList().size(), 2);
  sheet.copyLatex();
  EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("\\sqrt{2}"));
}

TEST_F(SolutionPageTest, TheExactSheetIsGoneThroughByKey) {
  const SolutionSteps steps{formulaStep("Result", "\\sqrt{2} = 1.41421356237")};
  const exact::AccountQuestion question{Mode::root, "", "2", {}};
  SolutionViewController::showSolution(tabs.get(), steps, ChartRows{}, QStringLiteral("qrx_info"),
                                       std::nullopt, 100, question);
  ASSERT_TRUE(QTest::qWaitFor([this] {
    window.grabWindow();
    return solution->hasExactValue();
  }));
  window.grabWindow();
  auto* button = cells().back()->findChild<QQuickItem*>("exactButton");
  ASSERT_TRUE(button);
  button->forceActiveFocus();
  QTest::keyClick(&window, Qt::Key_Space);
  const auto focused = [this] {
    return window.activeFocusItem() ? window.activeFocusItem()->objectName() : QString();
  };
  const auto press = [this](Qt::Key key) { QTest::keyClick(&window, key); };
  ASSERT_TRUE(QTest::qWaitFor([&] { return focused() == "copyExactLatex"; }));
  for (const char* next : {"copyExactText", "closeExactSheet", "moreDigits", "copyExactLatex"}) {
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), QLatin1String(next));
  }

  // The button that leads no further hands on to the one that leads back.
  press(Qt::Key_Backtab);
  const auto* sheet = qobject_cast<ExactSheetController*>(root->presentedController());
  for (int i = 0; i < 6; ++i) press(Qt::Key_Space);
  EXPECT_FALSE(sheet->hasMoreDigits());
  EXPECT_EQ(focused(), "fewerDigits");
  for (int i = 0; i < 6; ++i) press(Qt::Key_Return);
  EXPECT_FALSE(sheet->hasFewerDigits());
  EXPECT_EQ(focused(), "moreDigits");

  press(Qt::Key_Escape);
  EXPECT_TRUE(QTest::qWaitFor([this] { return root->presentedController() == nullptr; }));
}

TEST_F(SolutionPageTest, AWideFormulaScrollsSidewaysByKeyToItsEnd) {
  std::string copies;
  for (int i = 0; i < 60; ++i) copies += "\\left( 12 \\right) ";
  show({formulaStep("Result", copies)});
  auto* scroll = cells().at(0)->findChild<QQuickItem*>("formulaScroll");
  ASSERT_TRUE(scroll);
  QTest::keyClick(&window, Qt::Key_Down);
  const double hidden = scroll->property("contentWidth").toDouble() - scroll->width();
  ASSERT_GT(hidden, 1000);
  for (double way = 0; way < hidden + 48; way += 48) QTest::keyClick(&window, Qt::Key_Right);
  EXPECT_EQ(scroll->property("contentX").toDouble(), hidden);
}

TEST_F(SolutionPageTest, FormulasAreScaledByKeyWheelAndSettingsAndTheTopRowStays) {
  show(SolutionSteps(200, formulaStep("Step", "=\\frac{1}{2}")));
  const auto size = [this] {
    return cells().front()->findChild<QQuickItem*>("formula")->property("fontSize").toDouble();
  };
  const auto topRow = [this] {
    window.grabWindow();
    int index = -1;
    QMetaObject::invokeMethod(&table(), "indexAt", Q_RETURN_ARG(int, index), Q_ARG(qreal, 100.0),
                              Q_ARG(qreal, table().property("contentY").toDouble()));
    return index;
  };
  const double usual = size();
  table().setProperty("contentY", 5050.0);
  const int top = topRow();
  EXPECT_GT(top, 10);
  QTest::keyClick(&window, Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(size(), 1.1 * usual);
  for (int i = 0; i < 20; ++i) QTest::keyClick(&window, Qt::Key_Equal, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(size(), 2.5 * usual);
  EXPECT_EQ(topRow(), top);
  const QPointF place = table().mapToScene({100, 100});
  for (int i = 0; i < 20; ++i) {
    QWheelEvent turn(place, window.mapToGlobal(place), {}, {0, -120}, Qt::NoButton, Qt::ControlModifier,
                     Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&window, &turn);
  }
  EXPECT_DOUBLE_EQ(size(), 0.7 * usual);
  EXPECT_EQ(topRow(), top) << "it did not scroll either";
  EXPECT_EQ(preferences.value(preferences::formulaScale), 70);

  FormulaScale::shared().setSystemPercent(120);
  EXPECT_DOUBLE_EQ(size(), 0.7 * usual) << "a choice holds";
  QTest::keyClick(&window, Qt::Key_0, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(size(), 1.2 * usual);
  EXPECT_FALSE(preferences.contains(preferences::formulaScale));
  FormulaScale::shared().setSystemPercent(FormulaScale::usual);
  EXPECT_EQ(topRow(), top);
}

TEST_F(SolutionPageTest, TwoFingersScaleTheFormulas) {
  show(SolutionSteps(20, formulaStep("Step", "=1")));
  const QPoint middle = table().mapToScene({200, 300}).toPoint();
  const std::unique_ptr<QPointingDevice> touch(QTest::createTouchDevice());
  const auto at = [&](int reach) { return std::pair(middle - QPoint(0, reach), middle + QPoint(0, reach)); };
  const auto [first, second] = at(50);
  QTest::touchEvent(&window, touch.get()).press(0, first).press(1, second);
  for (int reach = 55; reach <= 100; reach += 5) {
    const auto [one, other] = at(reach);
    QTest::touchEvent(&window, touch.get()).move(0, one).move(1, other);
  }
  const auto [one, other] = at(100);
  QTest::touchEvent(&window, touch.get()).release(0, one).release(1, other);
  EXPECT_GT(FormulaScale::shared().percent(), 110);
  EXPECT_EQ(FormulaScale::shared().percent() % 5, 0);
  EXPECT_EQ(preferences.value(preferences::formulaScale), FormulaScale::shared().percent());
  FormulaScale::shared().choose(preferences, 0);
}

TEST_F(SolutionPageTest, MakesOnlyTheRowsThatCanBeSeen) {
  show(SolutionSteps(1000, formulaStep("", "=\\frac{1}{2}")));
  EXPECT_EQ(solution->table()->rowCount(), 1000);
  EXPECT_FALSE(cells().empty());
  EXPECT_LT(cells().size(), 20U);
}

TEST_F(SolutionPageTest, OnlyANewSolutionBeginsAtItsTop) {
  std::string wide = "1";
  for (int i = 0; i < 60; ++i) wide += " + 12";
  SolutionSteps steps(50, formulaStep("", "=1"));
  for (SolutionStep& step : steps) step.latexString = wide;
  show(steps);
  table().setProperty("contentY", 3000);
  window.grabWindow();
  cells().front()->findChild<QQuickItem*>("formulaScroll")->setProperty("contentX", 100);
  tabs->select(0);
  tabs->select(1);
  window.grabWindow();
  EXPECT_EQ(table().property("contentY").toDouble(), 3000);
  EXPECT_EQ(cells().front()->findChild<QQuickItem*>("formulaScroll")->property("contentX").toDouble(), 100);
  show(steps);
  EXPECT_LE(table().property("contentY").toDouble(), 0);
  EXPECT_EQ(cells().front()->findChild<QQuickItem*>("formulaScroll")->property("contentX").toDouble(), 0);
}

TEST_F(SolutionPageTest, ANewSolutionHasTheKeyboard) {
  show({formulaStep("Result", "1")});
  EXPECT_TRUE(table().hasActiveFocus());
}

TEST_F(SolutionPageTest, TheKeyboardGoesFromRowToRowAndCopiesThem) {
  show({formulaStep("Your Input", "\\frac{3}{4}"), formulaStep("Step", "2"), formulaStep("Result", "=x")});
  const auto copied = [] { return QGuiApplication::clipboard()->mimeData(); };
  QTest::keyClick(&window, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(copied()->text(), "=x") << "the result, as no row is chosen";
  QTest::keyClick(&window, Qt::Key_Down);
  QTest::keyClick(&window, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(copied()->text(), "\\frac{3}{4}");
  QTest::keyClick(&window, Qt::Key_Down);
  EXPECT_EQ(table().property("currentIndex").toInt(), 1);
  for (const auto& [form, expected] :
       {std::pair{RowCopy::Words, "Your Input, 3 over 4"}, std::pair{RowCopy::Latex, "\\frac{3}{4}"}}) {
    solution->copyRow(0, form);
    EXPECT_EQ(copied()->text(), QLatin1String(expected));
  }
  solution->copyRow(0, RowCopy::MathMl);
  EXPECT_TRUE(copied()->data("application/mathml+xml").contains("<mfrac><mn>3</mn><mn>4</mn></mfrac>"));
  solution->copyRow(0, RowCopy::Picture);
  EXPECT_EQ(copied()->imageData().value<QImage>().width(), 412 * 3);
}

TEST_F(SolutionPageTest, ARowHasItsMenuByKeyByRightClickAndByLongPress) {
  show({formulaStep("Your Input", "1"), formulaStep("Result", "2")});
  const auto isOpen = [this] { return menuEntry("copyRowLatex") != nullptr; };
  const QPoint place = cells().at(1)->mapToScene({100, 50}).toPoint();
  QTest::keyClick(&window, Qt::Key_Down);
  const std::function<void()> ways[] = {[&] { QTest::keyClick(&window, Qt::Key_Menu); },
                                        [&] { QTest::mouseClick(&window, Qt::RightButton, {}, place); },
                                        [&] {
                                          QTest::mousePress(&window, Qt::LeftButton, {}, place);
                                          EXPECT_TRUE(QTest::qWaitFor(isOpen, 5000));
                                          QTest::mouseRelease(&window, Qt::LeftButton, {}, place);
                                        }};
  for (const auto& way : ways) {
    way();
    ASSERT_TRUE(QTest::qWaitFor(isOpen, 5000)) << &way - ways;
    QTest::keyClick(&window, Qt::Key_Escape);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !isOpen(); }));
  }
  QTest::mouseClick(&window, Qt::RightButton, {}, place);
  ASSERT_TRUE(QTest::qWaitFor(isOpen));
  QTest::keyClick(&window, Qt::Key_Down);
  QTest::keyClick(&window, Qt::Key_Return);
  EXPECT_TRUE(QTest::qWaitFor([] { return QGuiApplication::clipboard()->text() == "2"; }));
}

TEST_F(SolutionPageTest, TheLastRowCanBeScrolledClearOfTheButtons) {
  show(SolutionSteps(30, formulaStep("Step", "1")));
  QTest::keyClick(&window, Qt::Key_End);
  window.grabWindow();
  const QQuickItem* last = cells().back();
  const auto* button = solution->view()->findChild<QQuickItem*>("manualButton");
  EXPECT_LE(last->mapToScene({0, last->height()}).y(), button->mapToScene({}).y());
}

TEST_F(SolutionPageTest, OnlyRowsThatAreInSightOrNextToItAreThere) {
  constexpr int rows = 60;
  constexpr double rowHeight = 206;
  constexpr double prepared = 320;  // above and below what is in sight
  show({formulaStep("Step", "1")}, ChartRows(rows, {std::make_shared<UnitCircleChartData>(
                                                       450, 7.853981633974483, 90, 1, Quadrant::first)}));
  auto* content = table().property("contentItem").value<QQuickItem*>();
  qsizetype most = 0;
  for (double y = 0; y < rows * rowHeight; y += table().height() / 2) {
    table().setProperty("contentY", y);
    window.grabWindow();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    qsizetype charts = 0;
    for (const QQuickItem* row : content->childItems())
      charts += row->findChild<QQuickItem*>("chart") ? 1 : 0;
    most = std::max(most, charts);
  }
  EXPECT_GE(most, table().height() / rowHeight);
  EXPECT_LE(most, (table().height() + 2 * prepared) / rowHeight + 2);
}

TEST_F(SolutionPageTest, AChartIsAsHighAsItsRatioSaysAndStartsHalfASecondAfterItComesIntoSight) {
  // Seven rows are 700 high: the chart begins under the edge of the table, where the list has prepared it.
  show(SolutionSteps(7, formulaStep("Step", "1")),
       {{std::make_shared<UnitCircleChartData>(450, 7.853981633974483, 90, 1, Quadrant::first)}});
  table().setProperty("contentY", 0);
  QQuickItem* row = cells().back();
  EXPECT_EQ(row->height(), 206);
  ASSERT_GE(row->y(), table().height());
  const auto* chart = row->findChild<QQuickItem*>("chart");
  ASSERT_TRUE(chart);
  const auto progress = [chart] { return chart->property("progress").toDouble(); };
  QTest::qWait(700);
  EXPECT_EQ(progress(), 0) << "not while it is out of sight";
  table().setProperty("contentY", 200);
  EXPECT_TRUE(QTest::qWaitFor([&] { return progress() == 1; }, 60'000));
  table().setProperty("contentY", 0);
  QSignalSpy steps(chart, SIGNAL(progressChanged()));
  table().setProperty("contentY", 200);
  EXPECT_TRUE(QTest::qWaitFor([&] { return steps.size() >= 2 && progress() == 1; }, 60'000)) << "and again";
}

TEST_F(SolutionPageTest, ARowIsReadAsOneThing) {
  show({formulaStep("Step 1", "\\frac{3}{4}"),
        {.title = "Result", .latexString = std::nullopt, .messageString = "No solution"}});
  const char* const expected[] = {"Step 1, 3 over 4", "Result, No solution"};
  const auto rows = cells();
  ASSERT_EQ(rows.size(), std::size(expected));
  for (std::size_t row = 0; row < rows.size(); ++row) {
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(rows[row]);
    ASSERT_TRUE(interface);
    EXPECT_EQ(interface->role(), QAccessible::StaticText);
    EXPECT_EQ(interface->text(QAccessible::Name), QLatin1String(expected[row]));
    EXPECT_EQ(interface->childCount(), 0) << "title and formula are part of the row's name";
  }
}

TEST_F(SolutionPageTest, TheRowOfVideosSaysWhatItIs) {
  knowVideos({"abcdefghi_-"});
  host.setHeight(400);
  show({formulaStep("Result", "1")});
  const auto rows = cells();
  ASSERT_EQ(rows.size(), 2U);
  const QQuickItem* card = shownItem(*rows[1], "videoRow");
  EXPECT_EQ(rows[1]->height(), card->y() + card->height()) << "nothing blank below";
  QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(rows[1]);
  ASSERT_TRUE(interface);
  EXPECT_EQ(interface->role(), QAccessible::Grouping);
  EXPECT_EQ(interface->text(QAccessible::Name), localized("recommendedVideoIfUnclear"));
}

TEST_F(SolutionPageTest, TheWheelScrollsAlsoOverAPlayer) {
  QFile player(folder.filePath("Player.qml"));
  ASSERT_TRUE(player.open(QFile::WriteOnly));
  player.write(
      "import QtQuick\nMouseArea { readonly property bool isReady: true; function play(page, address) {}\n"
      "onWheel: wheel => wheel.accepted = true }");
  player.close();
  knowVideos({"abcdefghi_1", "abcdefghi_2", "abcdefghi_3"});
  preferences.setValue(preferences::isYoutubeDsgvoAccepted, true);
  solution->videos()->setPlayerSource(QUrl::fromLocalFile(player.fileName()));
  show({formulaStep("Result", "1")});
  QQuickItem* videos = shownItem(table(), "videoCollection");
  const auto turn = [this, videos](QPoint angle) {
    const QPointF place = videos->mapToScene({100, 100});
    QWheelEvent event(place, window.mapToGlobal(place), {}, angle, Qt::NoButton, {}, Qt::NoScrollPhase,
                      false);
    QCoreApplication::sendEvent(&window, &event);
  };
  const double top = table().property("contentY").toDouble();
  turn({0, -40});
  EXPECT_EQ(table().property("contentY").toDouble(), top + 40);
  turn({-120, 0});
  EXPECT_EQ(videos->property("contentX").toDouble(), 104);
  turn({480, 0});
  EXPECT_TRUE(QTest::qWaitFor([videos] { return videos->property("contentX").toDouble() == -16; }));
}

TEST_F(SolutionPageTest, TheKeyboardGoesFromTheLockToOneVideoAfterTheOther) {
  knowVideos({"abcdefghi_1", "abcdefghi_2", "short"});
  solution->videos()->setPlayerSource(QUrl("qrc:/no/such/player.qml"));
  show({formulaStep("Result", "1")});
  const auto named = [this] {
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(window.activeFocusItem());
    return interface ? interface->text(QAccessible::Name) : QString();
  };
  const auto press = [this](Qt::Key key) { QTest::keyClick(&window, key); };
  const auto presented = [this] { return root->presentedController(); };

  ViewManager::shared();  // Keeps in mind where the focus is, as it does from the start of the application.
  shownItem(table(), "unlockButton")->forceActiveFocus(Qt::TabFocusReason);
  press(Qt::Key_Return);
  ASSERT_TRUE(QTest::qWaitFor([&] { return named() == localized("dsgvoDecline"); }));
  press(Qt::Key_Backtab);
  press(Qt::Key_Return);
  ASSERT_TRUE(QTest::qWaitFor([&] { return named() == localized("next"); })) << "the guide follows";
  press(Qt::Key_Escape);
  ASSERT_TRUE(QTest::qWaitFor([&] { return !presented() && named() == localized("videoGuide"); }));

  const QString outside = localized("videoOutside");
  const QString missing = localized("videoMissing");
  const auto isInSight = [&](const QQuickItem* item) {
    const double left = item->mapToItem(&table(), {}).x();
    return left >= 0 && left + item->width() <= table().width();
  };
  const std::pair<Qt::Key, QString> steps[] = {
      {Qt::Key_Tab, "1: " + outside},     {Qt::Key_Tab, "2: " + outside},
      {Qt::Key_Right, "3: " + missing},   {Qt::Key_Left, "2: " + outside},
      {Qt::Key_Left, "1: " + outside},    {Qt::Key_Right, "2: " + outside},
      {Qt::Key_Backtab, "1: " + outside}, {Qt::Key_Backtab, localized("videoGuide")}};
  for (const auto& [key, name] : steps) {
    press(key);
    // A video that was out of sight has its button only once it is there.
    EXPECT_TRUE(QTest::qWaitFor([&, wanted = name] {
      return named() == wanted && isInSight(window.activeFocusItem());
    })) << name.toStdString()
        << " but " << named().toStdString();
  }
  press(Qt::Key_Up);
  EXPECT_EQ(window.activeFocusItem(), cells().front()) << "of the row and its button only one has the focus";

  shownItem(table(), "coveringView")->forceActiveFocus(Qt::TabFocusReason);
  shownItem(*root->view(), "shareButton")->forceActiveFocus(Qt::TabFocusReason);
  table().forceActiveFocus(Qt::TabFocusReason);
  EXPECT_EQ(window.activeFocusItem(), cells().front()) << "who comes back begins at the row";
}

}  // namespace
}  // namespace tavi
