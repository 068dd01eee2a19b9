#include <QLocale>

#include <gtest/gtest.h>

#include "platform/analytics.h"
#include "platform/application_context.h"
#include "platform/links.h"
#include "platform/notification_center.h"
#include "platform/resource_bundle.h"
#include "platform/test_support.h"

namespace tavi {
namespace {

TEST(NotificationCenterTest, ReachesTheObserversOfTheNameUntilTheyAreGone) {
  NotificationCenter center;
  QStringList heard;
  QObject lasting;
  center.observe("menu", &lasting, [&] { heard.append("first"); });
  {
    QObject passing;
    center.observe("menu", &passing, [&] { heard.append("second"); });
    center.observe("other", &passing, [&] { heard.append("never"); });
    center.post("menu");
    EXPECT_EQ(heard, QStringList({"first", "second"}));
  }
  center.post("menu");
  EXPECT_EQ(heard, QStringList({"first", "second", "first"}));
}

TEST(AnalyticsTest, KeepsTheLastEventsInOrder) {
  Analytics::clearRecentEvents();
  Analytics::logEvent("none");
  Analytics::logEvent("empty", QVariantMap());
  EXPECT_EQ(Analytics::recentEvents()[0].parameters, std::nullopt);
  EXPECT_EQ(Analytics::recentEvents()[1].parameters, QVariantMap());
  for (std::size_t i = 0; i < Analytics::capacity; ++i) Analytics::logEvent(QString::number(i));
  EXPECT_EQ(Analytics::recentEvents().size(), Analytics::capacity);
  EXPECT_EQ(Analytics::recentEvents().front().name, "0");
}

TEST(AnalyticsTest, AnotherSinkTakesTheEvents) {
  Analytics::clearRecentEvents();
  QStringList taken;
  Analytics::setSink([&](const AnalyticsEvent& event) { taken.append(event.name); });
  Analytics::logEvent("one", QVariantMap{{"count", 1}});
  Analytics::setSink({});
  Analytics::logEvent("two");
  EXPECT_EQ(taken, QStringList("one"));
  EXPECT_EQ(Analytics::recentEvents().size(), 1U);
}

TEST(LinksTest, OnlyWebAndMailAddressesLeave) {
  Links links;
  QList<QUrl> opened;
  links.setHandler({}, [&](const QUrl& address) {
    opened.append(address);
    return true;
  });
  struct Case {
    const char* address;
    bool isOpenable;
  };
  const Case cases[] = {{"https://example.org/a?b=c", true},
                        {"http://example.org", true},
                        {"mailto:team@example.org", true},
                        {"", false},
                        {"https://", false},
                        {"example.org", false},
                        {"tavi-fractions://", false},
                        {"file:///etc/passwd", false},
                        {"javascript:alert(1)", false},
                        {"https://exa mple.org", false}};
  for (const Case& each : cases) {
    opened.clear();
    std::optional<bool> result;
    const QUrl address(each.address);
    EXPECT_EQ(links.canOpen(address), each.isOpenable) << each.address;
    links.open(address, [&](bool isOpened) { result = isOpened; });
    EXPECT_EQ(result, each.isOpenable) << each.address;
    EXPECT_EQ(opened.size(), each.isOpenable ? 1 : 0) << each.address;
  }
}

TEST(LinksTest, TheSystemMayKnowMoreAndMayFail) {
  Links links;
  links.setHandler([](const QUrl& address) { return address.scheme() == "tavi"; },
                   [](const QUrl&) { return false; });
  EXPECT_TRUE(links.canOpen(QUrl("tavi://")));
  std::optional<bool> result;
  links.open(QUrl("tavi://"), [&](bool isOpened) { result = isOpened; });
  EXPECT_EQ(result, false);
}

TEST(ResourceBundleTest, FindsFilesByNameAndExtension) {
  const ResourceBundle& bundle = ResourceBundle::main();
  EXPECT_TRUE(bundle.path("RemoteConfigDefaults", "plist"));
  EXPECT_TRUE(bundle.data("RemoteConfigDefaults", "plist")->contains("<plist"));
  EXPECT_FALSE(bundle.path("RemoteConfigDefaults", "json"));
  EXPECT_FALSE(bundle.data("RemoteConfigDefaults", "json"));
}

TEST(ApplicationContextTest, TellsTheUsersLanguage) {
  struct Restore {
    QLocale locale;
    ~Restore() { QLocale::setDefault(locale); }
  } const restore;
  const std::pair<QLocale, std::optional<QString>> cases[] = {{QLocale("de_AT"), "de"},
                                                              {QLocale("pt_BR"), "pt"},
                                                              {QLocale("zh_Hant_TW"), "zh"},
                                                              {QLocale::c(), std::nullopt}};
  for (const auto& [locale, language] : cases) {
    QLocale::setDefault(locale);
    EXPECT_EQ(ApplicationContext::current().languageCode, language) << locale.name().toStdString();
  }
}

}  // namespace
}  // namespace tavi
