#include "shell/history/history_search.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLocale>

#include "number/fatal_stop.h"
#include "platform/localization.h"
#include "platform/test_support.h"
#include "shell/frame/view_manager.h"
#include "shell/history/history_fixture.h"
#include "shell/history/typed_text.h"
#include "typeset/math_label.h"

namespace tavi {
namespace {

using EditingStyle = HistoryTableViewController::EditingStyle;
using CopyForm = HistoryTableViewController::CopyForm;

Calculation typed(int mode, const QString& first, const QString& second, const QString& latex) {
  return {{{"aTextField", first}, {"xTextField", second}}, latex, {}, {{"inputCalculationSelection", mode}}};
}

TEST(TypedText, SaysATaskInOneLine) {
  struct Case {
    int mode;
    const char* first;
    const char* second;
    const char* text;
  };
  for (const Case& each :
       {Case{0, "30", "2", "2^30"}, Case{0, "-2", "3/2", "(3/2)^(-2)"}, Case{0, "2x", "0.5", "0.5^(2x)"},
        Case{0, "x", "2π", "(2π)^x"}, Case{1, "3", "27/8", "³√(27/8)"}, Case{1, "12", "x", "¹²√x"},
        Case{1, "", "2", "√2"}, Case{1, "-1/2", "2", "√[-1/2]2"}, Case{0, "", "", ""},
        Case{7, "3", "2", "2^3"}})
    EXPECT_EQ(typedText(typed(each.mode, each.first, each.second, "")), each.text);
}

TEST_F(HistoryScreenTest, FindsWhatWasTypedOrIsSpoken) {
  ASSERT_TRUE(loadTranslations({"de"}));
  store.clearCalculations();
  const QList<Calculation> tasks{
      typed(0, "-2", "3/2", R"(\frac{3}{2}^{-2})"), typed(1, "3", "27/8", R"(\sqrt[3]{\frac{27}{8}})"),
      typed(1, "", "144", R"(\sqrt{144})"), typed(0, "0.5", "2π", R"(\left( 2\pi \right)^{0.5})")};
  for (const Calculation& each : tasks) store.addCalculation(each);
  struct Case {
    const char* query;
    QList<qsizetype> found;  // from the last one added
  };
  for (const Case& each :
       {Case{"3/2", {3}}, Case{"(3/2)^(-2)", {3}}, Case{"3/2^−2", {3}}, Case{"-2", {3}}, Case{"27", {2}},
        Case{"³√(27/8)", {2}}, Case{"0,5", {0}}, Case{"π", {0}}, Case{"2 3", {2, 3}}, Case{"WURZEL", {1, 2}},
        Case{"wurzel 144", {1}}, Case{"Hoch", {0, 3}}, Case{"root", {}}, Case{"frac", {}}, Case{"145", {}},
        Case{" ", {}}}) {
    HistorySearch search(store);
    search.begin(each.query);
    while (!search.isThrough()) search.goOn(std::chrono::milliseconds(1));
    EXPECT_EQ(search.found(), each.found) << each.query;
  }
}

TEST_F(HistoryScreenTest, FindsEachTaskAsItIsSpokenThoughTasksShareWords) {
  store.clearCalculations();
  const QString many = QStringLiteral("10+11+12+13+14+15+16+17+18+19+").repeated(2);
  const QStringList lines{R"(\frac{12}{34}^{-56})",
                          R"(\frac{34}{12}^{-56})",
                          R"(\frac{404}{40}^{-41})",
                          R"(\sqrt[12]{\frac{345}{4}})",
                          R"(\sqrt[3]{41\,40})",
                          R"(x^30 \cdot 4_{77})",
                          R"(\left( 2,75\pi \right)^{0.125})",
                          many + u'1',
                          many + QStringLiteral("98")};
  for (const QString& each : lines) store.addCalculation(Calculation({}, each, {}, {}));
  for (const char* language : {"de", "ja", "hi"}) {
    ASSERT_TRUE(loadTranslations({language}));
    HistorySearch search(store);
    for (qsizetype i = 0; i < lines.size(); ++i) {
      search.begin(typeset::spokenText(lines[i]));
      while (!search.isThrough()) search.goOn(std::chrono::milliseconds(1));
      EXPECT_TRUE(search.found().contains(lines.size() - 1 - i)) << language << lines[i].toStdString();
    }
    search.remove(0);
    EXPECT_FALSE(search.found().contains(0));
  }
}

TEST_F(HistoryScreenTest, ShowsWhatIsFoundAndActsOnIt) {
  store.clearCalculations();
  for (const char* latex : {"41", "3", "14", "2", "1"}) store.addCalculation(task(latex));
  history->setSearchText("1");
  EXPECT_TRUE(history->isSearching());
  EXPECT_TRUE(history->isSearchThrough());
  EXPECT_EQ(history->table()->rowCount(), 3);

  EXPECT_FALSE(history->canMoveRow(0));
  history->moveRow(0, 2);
  EXPECT_EQ(stored(), QStringList({"1", "2", "14", "3", "41"}));
  EXPECT_THROW(history->commitEditingStyle(EditingStyle::Delete, 3), FatalStop);

  history->commitEditingStyle(EditingStyle::Delete, 1);
  EXPECT_EQ(stored(), QStringList({"1", "2", "3", "41"}));
  history->copyRow(1, CopyForm::Latex);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "41") << "what follows has moved up";
  ViewManager::chooseToastAction();
  EXPECT_EQ(history->table()->rowCount(), 2) << "the toast of the copy has taken the place of the other";

  history->commitEditingStyle(EditingStyle::Delete, 0);
  ViewManager::chooseToastAction();
  EXPECT_EQ(history->table()->rowCount(), 2);
  EXPECT_EQ(stored(), QStringList({"1", "2", "3", "41"}));

  history->setSearchText("41");
  history->didSelectRow(0);
  EXPECT_EQ(store.currentSelectedCalculation()->latexString, "41");
  history->setSearchText("");
  EXPECT_EQ(history->table()->rowCount(), 4);
  EXPECT_TRUE(history->canMoveRow(0));
}

TEST_F(HistoryScreenTest, SearchesALongHistoryPieceByPiece) {
  constexpr int many = 40'000;
  QVariantList records(many, task("2").properties());
  records.append(task("77").properties());
  preferences.setValue("Calculations", records);
  store.loadCalculations();
  history->prepareSearch();
  history->setSearchText("77");
  ASSERT_TRUE(waitUntil([this] { return history->isSearchThrough(); }));
  EXPECT_EQ(history->table()->rowCount(), 1);
  history->copyRow(0, CopyForm::Latex);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "77");
}

TEST_F(HistoryScreenTest, CopiesATaskAsItWasTypedOrInLatex) {
  store.clearCalculations();
  store.addCalculation(Calculation({}, "x", {}, {}));
  store.addCalculation(typed(0, "-2", "3/2", R"(\frac{3}{2}^{-2})"));
  for (const auto& [row, form, text] : std::initializer_list<std::tuple<int, CopyForm, const char*>>{
           {0, CopyForm::Typed, "(3/2)^(-2)"},
           {0, CopyForm::Latex, R"(\frac{3}{2}^{-2})"},
           {1, CopyForm::Typed, "x"}}) {
    history->copyRow(row, form);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), text);
    EXPECT_EQ(ViewManager::shared().toastText(), localized("sharingCopied"));
  }
}

TEST(DayTitle, IsAWordOrADate) {
  ASSERT_TRUE(loadTranslations({"de"}));
  const QDate today(2026, 3, 1);
  const auto at = [&today](int days, QTime time) { return QDateTime(today.addDays(days), time).toUTC(); };
  EXPECT_EQ(dayTitle(at(0, QTime(0, 0)), today), localized("dayToday"));
  EXPECT_EQ(dayTitle(at(-1, QTime(23, 59)), today), localized("dayYesterday"));
  EXPECT_EQ(dayTitle({}, today), localized("dayEarlier"));
  for (const auto& [locale, title] :
       std::initializer_list<std::pair<const char*, const char*>>{{"de_CH", "Freitag, 27. Februar 2026"},
                                                                  {"de_AT", "Freitag, 27. Februar 2026"},
                                                                  {"en_US", "Freitag, 27. Februar 2026"}}) {
    QLocale::setDefault(QLocale(locale));
    EXPECT_EQ(dayTitle(at(-2, QTime(12, 0)), today), title) << locale;
  }
  ASSERT_TRUE(loadTranslations({"en"}));
  for (const auto& [locale, title] : std::initializer_list<std::pair<const char*, const char*>>{
           {"en_US", "Friday, February 27, 2026"}, {"en_GB", "Friday, 27 February 2026"}}) {
    QLocale::setDefault(QLocale(locale));
    EXPECT_EQ(dayTitle(at(-2, QTime(12, 0)), today), title) << locale;
  }
  ASSERT_TRUE(loadTranslations({"ru"}));
  EXPECT_EQ(dayTitle(at(-2, QTime(12, 0)), today), QString::fromUtf8("Пятница, 27 февраля 2026 г."));
  QLocale::setDefault(QLocale::system());
}

TEST_F(HistoryScreenTest, ADayGoesWithItsRow) {
  store.clearCalculations();
  const auto dated = [](const QString& latex, const QDateTime& moment) {
    Calculation calculation = task(latex);
    calculation.calculatedAt = moment;
    return calculation;
  };
  const QDateTime now = QDateTime::currentDateTimeUtc();
  for (const auto& each : {task("C"), dated("B", now.addDays(-1)), dated("A", now)})
    store.addCalculation(each);
  HistoryTableViewController page(store, {});
  page.beginAppearance();
  const auto days = [&page] {
    QStringList titles;
    for (int row = 0; row < page.table()->rowCount(); ++row)
      titles += page.table()->data(page.table()->index(row), TableRows::dayRole).toString();
    return titles;
  };
  const QString today = localized("dayToday");
  const QString yesterday = localized("dayYesterday");
  const QString earlier = localized("dayEarlier");
  EXPECT_EQ(days(), QStringList({today, yesterday, earlier}));
  page.moveRow(0, 2);
  EXPECT_EQ(days(), QStringList({yesterday, earlier, today}));
  page.setSearchText("B");
  EXPECT_EQ(days(), QStringList({yesterday}));
}

}  // namespace
}  // namespace tavi
