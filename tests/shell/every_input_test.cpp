// Whatever can be typed on the keypad ends in a solution or in words.
#include <QQuickWindow>
#include <QTest>
#include <algorithm>
#include <chrono>
#include <iostream>
#include <map>
#include <random>
#include <stdexcept>

#include <gtest/gtest.h>

#include "appearance/view.h"
#include "platform/preference_store.h"
#include "shell/calculate_view_controller.h"

namespace tavi {
namespace {

using namespace Qt::StringLiterals;

// Texts near and beyond what the arithmetic can hold.
QStringList extremes() {
  const QString huge(400, '9');
  const QString tiny = "0." + QString(400, '0') + "1";
  const QString denormal = "0." + QString(320, '0') + "1";
  const QStringList typed =
      u"0 -0 1 -1 2 .5 3. -2/3 0/5 5/-0 π -x 1.000001/3 1/1.000001 0.0000001 0.000000000000000000000001 1.01 "
      u"0.99 "
      "365 10000 10001 1/10000 1/10001 -10001/2 4611686018427387904 9223372036854775807 9223372036854775808 "
      "18446744073709551616/2 99999999999999999999 1/99999999999999999999 123456789.987654321 "
      "99999999999999999999/99999999999999999998 999999999999.9999999999 1000000000000 -1000000000001/7 "
      "0.1/0.3 "
      "3.14159265358979323846264338327950288/2.71828182845904523536 2/3π 3/x x/3 -π/π"_s.split(' ');
  return typed + QStringList{huge, "-" + huge,      "1/" + huge,       huge + "/" + huge,
                             tiny, denormal + "/3", QString(5000, '1')};
}

class TaskGenerator {
 public:
  QString text() {
    if (chance(12)) return extremes_[below(extremes_.size())];
    QString typed = chance(3) ? term() + '/' + term() : term();
    // A slip of the finger.
    constexpr QStringView keys = u"0123456789./-πxyz";
    if (chance(6)) typed.insert(below(typed.size() + 1), keys[below(keys.size())]);
    if (chance(20)) typed.remove(below(typed.size() + 1), 1);
    return typed;
  }

  int mode() { return below(2); }

 private:
  QString term() {
    QString typed = chance(4) ? u"-"_s : u""_s;
    typed += digits(chance(8) ? 25 : chance(3) ? 6 : 2);
    if (chance(4)) typed += '.' + digits(chance(5) ? 25 : 3);
    if (chance(8)) typed += u"πxyz"_s[below(4)];
    return typed;
  }

  QString digits(int most) {
    QString typed;
    for (int count = 1 + below(most); count > 0; --count) typed += QChar('0' + below(10));
    return typed;
  }

  int below(qsizetype bound) { return static_cast<int>(random_() % static_cast<std::uint64_t>(bound)); }
  bool chance(int oneIn) { return below(oneIn) == 0; }

  const QStringList extremes_ = extremes();
  std::mt19937_64 random_{20240229};
};

// The page without its looks: what the controller works on, and nothing that draws.
class BarePage {
 public:
  BarePage() {
    auto root = std::make_unique<QQuickItem>();
    root->setFlag(QQuickItem::ItemIsFocusScope);
    controller.segmentedControl = new QQuickItem(root.get());
    controller.segmentedControl->setProperty("selectedSegmentIndex", 0);
    controller.modeAView = new QQuickItem(root.get());
    controller.modeBView = new QQuickItem(root.get());
    for (QQuickItem* holder : {controller.modeAView, controller.modeBView}) {
      for (QList<DTTextField*>* twins : {&controller.aTextField, &controller.xTextField}) {
        auto* field = twins->emplaceBack(new DTTextField(holder));
        qobject_cast<View*>(qmlAttachedPropertiesObject<View>(field))->setKind(View::Kind::TextField);
      }
    }
    window_.show();
    window_.requestActivate();
    if (!QTest::qWaitForWindowActive(&window_)) throw std::runtime_error("the window does not become active");
    root->setParentItem(window_.contentItem());
    controller.setView(std::move(root));
    controller.beginAppearance();
  }

  // Types as the keypad does: its minus is off where it would be a fatal stop.
  void type(DTTextField& field, const QString& keys) {
    field.forceActiveFocus();
    field.setSelectedTextRange({0, field.text().size()});
    controller.tappedDeleteButton();
    for (const QChar key : keys) {
      if (key != '-' || controller.isMinusKeyEnabled()) controller.tappedKeypadButton(key);
    }
  }

 private:
  PreferenceStore preferences_{"/dev/null/keeps its values in memory"};
  QQuickWindow window_;
  TaviStringOutput output_;
  TaviMathOperation operation_{output_};

 public:
  CalcManager store{preferences_};
  QStringList toasts;
  ErrorManager errorManager{{[this](const QString& text) { toasts.append(text); }, {}}};
  NotificationCenter notifications;
  CalculateViewController controller{store, notifications, errorManager, output_, operation_};
};

TEST(EveryInput, EndsInASolutionOrInWords) {
#if defined(__SANITIZE_ADDRESS__)
  constexpr int inputs = 5'000;
#else
  constexpr int inputs = 60'000;
#endif
  BarePage page;
  TaskGenerator generator;
  std::map<QString, int> outcomes;
  std::chrono::nanoseconds slowest{0};
  for (int i = 0; i < inputs; ++i) {
    const int mode = generator.mode();
    page.controller.segmentedControlValueChanged(mode);
    page.type(*page.controller.aTextField[mode], generator.text());
    page.type(*page.controller.xTextField[mode], generator.text());
    const auto task = [&] {
      return std::to_string(mode) + ": " + page.controller.aTextField[0]->text().toStdString() + " and " +
             page.controller.xTextField[0]->text().toStdString();
    };

    TaskPreview preview;
    ASSERT_NO_THROW(preview = page.controller.preview()) << task();
    page.toasts.clear();
    page.store.clearCalculations();
    bool isSolved = false;
    const auto start = std::chrono::steady_clock::now();
    ASSERT_NO_THROW(isSolved = page.controller.performCalculation()) << task();
    slowest = std::max(slowest, std::chrono::steady_clock::now() - start);
    const bool isFine = preview.isReadable && (preview.hint.isEmpty() || preview.hint == "hintInfinite" ||
                                               preview.hint == "hintDividesByZero");
    ASSERT_EQ(isFine, isSolved) << task();
    if (isSolved) {
      ASSERT_EQ(page.store.calculations().size(), 1) << task();
      ASSERT_FALSE(page.store.calculation(0).latexString.isEmpty()) << task();
    }
    ASSERT_EQ(page.store.calculations().isEmpty(), !isSolved) << task();
    ASSERT_EQ(page.toasts.size(), isSolved ? 0 : 1) << task();
    ++outcomes[isSolved ? u"solved"_s : page.toasts.front()];
  }
  for (const auto& [outcome, count] : outcomes) std::cout << count << ' ' << outcome.toStdString() << '\n';
  std::cout << "slowest " << std::chrono::duration<double, std::milli>(slowest).count() << " ms\n";
  EXPECT_GT(outcomes[u"solved"_s], inputs / 4);
}

}  // namespace
}  // namespace tavi
