#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include "appearance/appearance.h"
#include "platform/localization.h"
#include "platform/preferences.h"
#include "platform/test_support.h"
#include "remote/analytics_events.h"
#include "remote/consent/privacy_text.h"
#include "shell/launch/launch_fixture.h"
#include "shell/settings/settings_view_controller.h"

namespace tavi {
namespace {

MeasurementSettings someCollector() {
  MeasurementSettings settings;
  settings.endpoint = QUrl("https://collector.invalid/v1/logs");
  return settings;
}

QQuickItem* find(QQuickItem& root, const char* name) {
  if (root.objectName() == name && root.isVisible()) return &root;
  for (QQuickItem* child : root.childItems())
    if (QQuickItem* found = find(*child, name)) return found;
  return nullptr;
}

/// The settings in an open window, with a client that could measure.
class SettingsTest : public LaunchTest {
 protected:
  SettingsTest() {
    preferences.setValue(preferences::isOnboardingFinished, true);
    preferences.setValue(preferences::isDsgvoAccepted, true);
  }

  ~SettingsTest() override { Appearance::shared().force(std::nullopt); }

  void openSettings() {
    AppServices measured = services;
    measured.measurement = &client;
    delegate = std::make_unique<AppDelegate>(engine, measured);
    delegate->didFinishLaunching();
    delegate->drawer()->toggleLeftView();
    ASSERT_TRUE(waitUntil([this] { return item("settingsButton") != nullptr; }));
    delegate->leftViewController()->showSettings();
    ASSERT_TRUE(waitUntil([this] { return item("languageRow") != nullptr; }));
  }

  QQuickItem* item(const char* name) const { return find(*delegate->window()->contentItem(), name); }

  /// What has the focus, by its name.
  QString focused() const {
    const QQuickItem* item = delegate->window()->activeFocusItem();
    while (item && item->objectName().isEmpty()) item = item->parentItem();
    return item ? item->objectName() : QString();
  }

  QString measured() const { return folder.filePath("measurement.sqlite"); }

  MeasurementClient client{someCollector(), folder.filePath("measurement.sqlite")};
};

TEST_F(SettingsTest, AreReachedAndChangedByKey) {
  openSettings();
  ASSERT_TRUE(waitUntil([this] { return focused() == "closeSheetButton"; }));
  for (const char* next :
       {"segment0", "segment1", "segment2", "smaller", "larger", "languageRow", "historyExport",
        "historyImport", "measurementSwitch", "measurementSent", "closeSheetButton"}) {
    QTest::keyClick(delegate->window(), Qt::Key_Tab);
    EXPECT_EQ(focused(), next);
  }

  item("segment2")->forceActiveFocus();
  QTest::keyClick(delegate->window(), Qt::Key_Space);
  EXPECT_TRUE(Appearance::shared().isDark());
  EXPECT_EQ(preferences.value(preferences::appearance), "dark");

  for (int i = 0; i < 20; ++i) {
    if (!item("larger")->isEnabled()) break;
    item("larger")->forceActiveFocus();
    QTest::keyClick(delegate->window(), Qt::Key_Space);
  }
  EXPECT_EQ(preferences.value(preferences::formulaScale), FormulaScale::most);
  EXPECT_EQ(item("stepperValue")->property("text"), "250\u202f%");
  FormulaScale::shared().choose(preferences, 0);

  item("languageRow")->forceActiveFocus();
  QTest::keyClick(delegate->window(), Qt::Key_Return);
  ASSERT_TRUE(waitUntil([this] { return item("language de") != nullptr; }));
  item("language de")->forceActiveFocus();
  QTest::keyClick(delegate->window(), Qt::Key_Return);
  EXPECT_EQ(preferences.value(preferences::language), "de");

  QTest::keyClick(delegate->window(), Qt::Key_Escape);
  EXPECT_TRUE(waitUntil([this] { return !delegate->leftViewController()->presentedController(); }));
}

TEST_F(SettingsTest, MeasureFromTheConsentOnAndForgetAtItsWithdrawal) {
  openSettings();
  client.take({"tapped_clear", std::nullopt});
  EXPECT_FALSE(QFile::exists(measured()));

  item("measurementSwitch")->forceActiveFocus();
  QTest::keyClick(delegate->window(), Qt::Key_Space);
  EXPECT_EQ(preferences.value(preferences::acceptedMeasurement), client.terms());
  client.take({"tapped_clear", std::nullopt});
  EXPECT_EQ(client.waiting(), 1);

  QTest::keyClick(delegate->window(), Qt::Key_Space);
  EXPECT_EQ(preferences.value(preferences::acceptedMeasurement), "");
  EXPECT_FALSE(QFile::exists(measured()));
}

TEST_F(SettingsTest, AConsentToOtherTermsIsNone) {
  preferences.setValue(preferences::acceptedMeasurement, client.terms() + " with workings");
  AppServices measured = services;
  measured.measurement = &client;
  EXPECT_FALSE(SettingsViewController(measured).isMeasuring());
}

TEST_F(SettingsTest, AnAppearanceThatIsNoneFollowsTheSystem) {
  const bool isSystemDark = Appearance::shared().isDark();
  for (const auto& [stored, isDark] : std::initializer_list<std::pair<const char*, bool>>{
           {"dark", true}, {"light", false}, {"Dark", isSystemDark}, {"", isSystemDark}}) {
    preferences.setValue(preferences::appearance, QString(stored));
    applyStoredAppearance(preferences);
    EXPECT_EQ(Appearance::shared().isDark(), isDark) << stored;
  }
}

TEST(PrivacyText, NamesEveryEventThatIsReported) {
  QFile header(QStringLiteral(TAVI_SOURCE_DIR "/src/remote/analytics_events.h"));
  ASSERT_TRUE(header.open(QIODevice::ReadOnly));
  static const QRegularExpression constant(R"re(QLatin1StringView \w+\{"([^"]+)"\};)re");
  ASSERT_TRUE(loadTranslations({"en"}));
  const QString text = privacyText(someCollector());
  int count = 0;
  for (auto found = constant.globalMatch(QString::fromUtf8(header.readAll())); found.hasNext(); ++count)
    EXPECT_TRUE(text.contains("• " + found.next().captured(1)));
  EXPECT_EQ(count, events::vocabulary.size());
  EXPECT_TRUE(text.contains("collector.invalid"));
  EXPECT_FALSE(text.contains("latex_string")) << "what was typed is not sent";
  MeasurementSettings telling = someCollector();
  telling.sendsWorkings = true;
  EXPECT_TRUE(privacyText(telling).contains("latex_string"));
  EXPECT_TRUE(privacyText(telling).contains(localized("measurementWorkings")));
  EXPECT_EQ(privacyText({}), localized("dsgvoTextPro")) << "without a collector nothing is sent";
}

}  // namespace
}  // namespace tavi
