#include "input/error_manager.h"

#include <QCoreApplication>
#include <QQuickItem>
#include <QStringList>
#include <QTranslator>
#include <memory>
#include <vector>

#include <gtest/gtest.h>

#include "appearance/interface_colors.h"
#include "appearance/view.h"
#include "platform/analytics.h"

namespace tavi {
namespace {

// Words with the places for the numbers; keys without words have none.
class NumberedWords : public QTranslator {
 public:
  NumberedWords() { QCoreApplication::installTranslator(this); }
  QString translate(const char*, const char* key, const char*, int) const override {
    return QByteArray(key).startsWith("mustBe") ? QString(key) + ": %0, %1" : QString();
  }
  bool isEmpty() const override { return false; }
};

class ErrorManagerTest : public testing::Test {
 protected:
  ErrorManagerTest() {
    Analytics::clearRecentEvents();
    for (const char* text : {"1", "2", "", ""}) {
      auto& field = *fields_.emplace_back(std::make_unique<DTTextField>(&shown_));
      qmlAttachedPropertiesObject<View>(&field);
      field.setText(text);
      manager_.allFields.append(&field);
    }
    fields_[3]->setParentItem(&hidden_);
    hidden_.setVisible(false);
  }

  std::string switchedOn() const {
    std::string states;
    for (const auto& field : fields_) states += field->isEnabled() ? '+' : '-';
    return states;
  }

  QQuickItem shown_;
  QQuickItem hidden_;
  std::vector<std::unique_ptr<DTTextField>> fields_;
  QStringList messages_;
  ErrorManager manager_{
      {.showToast = [this](const QString& text) { messages_.append("toast: " + text); },
       .presentAlert = [this](const QString& title,
                              const QString& text) { messages_.append(title + ": " + text); }}};
};

TEST_F(ErrorManagerTest, EmptyFieldsAreSwitchedOffOnceEnoughAreFilled) {
  manager_.requiredAmountOfFields = 2;
  manager_.refreshFields();
  EXPECT_EQ(switchedOn(), "++-+");
  EXPECT_EQ(fields_[2]->backgroundColor(), InterfaceColor::fieldFill());
  EXPECT_EQ(fields_[1]->backgroundColor(), InterfaceColor::fieldBackground());

  fields_[0]->setText("");
  manager_.refreshFields();
  EXPECT_EQ(switchedOn(), "++++");
  EXPECT_EQ(fields_[2]->backgroundColor(), InterfaceColor::fieldBackground());
}

TEST_F(ErrorManagerTest, NoFieldIsSwitchedWithoutARequiredAmount) {
  fields_[2]->setEnabled(false);
  manager_.refreshFields();
  EXPECT_EQ(switchedOn(), "++-+");
}

TEST_F(ErrorManagerTest, FieldsThatAreGoneCountAsNone) {
  manager_.requiredAmountOfFields = 2;
  fields_[0].reset();
  manager_.refreshFields();
  EXPECT_TRUE(fields_[2]->isEnabled());
}

TEST_F(ErrorManagerTest, AReportIsLoggedThenColouredThenShown) {
  QStringList order;
  Analytics::setSink([&](const AnalyticsEvent& event) {
    order.append(event.name + " " + event.parameters->value("error_case").toString());
  });
  QObject::connect(fields_[0].get(), &DTTextField::appearanceChanged, [&] { order.append("coloured"); });
  ErrorManager manager({[&](const QString&) { order.append("shown"); }});
  manager.reportInputError("fractionIncomplete", {fields_[0].get()});
  Analytics::setSink({});
  EXPECT_EQ(order, QStringList({"tavi_got_error fractionIncomplete", "coloured", "shown"}));
  EXPECT_EQ(fields_[0]->borderColor(), InterfaceColor::red());
  EXPECT_EQ(fields_[0]->faultWords(), "fractionIncomplete");
  fields_[0]->setText("1/2");
  EXPECT_EQ(fields_[0]->faultWords(), "");

  manager_.reportInputError("notEnoughInputValues", {fields_[2].get()});
  EXPECT_EQ(fields_[2]->borderColor(), InterfaceColor::orange());
  manager_.reportInputError("notEnoughInputValues", {});
  EXPECT_EQ(messages_.size(), 2);
}

TEST_F(ErrorManagerTest, WordsOfAKey) {
  const NumberedWords words;
  struct Case {
    const char* key;
    QStringList shown;
  };
  const Case cases[] = {
      {"wordless", {"toast: wordless"}},
      {"wordless§7", {"toast: wordless"}},
      {"", {}},
      {"§", {}},
      {"oppositionError§3", {"error: oppositionError"}},
      {"mustBeBiggerThanXAndLessThanY§1§10", {"toast: mustBeBiggerThanXAndLessThanY: 1, 10"}},
      {"mustBeBiggerThanXAndLessThanY§1", {}},
      {"mustBeGreatherThanX§5", {"toast: mustBeGreatherThanX: 5, %1"}},
      {"mustBeGreatherThanX", {}},
      {"mustBeLessThanX§5§6", {}},
      {"mustBeLessThanX§-5", {"toast: mustBeLessThanX: -5, %1"}},
  };
  for (const Case& each : cases) {
    messages_.clear();
    manager_.showErrorMessage(QString::fromUtf8(each.key));
    EXPECT_EQ(messages_, each.shown) << each.key;
  }
}

}  // namespace
}  // namespace tavi
