#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "number/fatal_stop.h"
#include "platform/analytics.h"
#include "platform/localization.h"
#include "platform/test_support.h"
#include "remote/introduction/onboard_view_controller.h"
#include "shell/frame/alert_controller.h"
#include "shell/frame/recording_controller.h"
#include "shell/launch/app_delegate.h"

namespace tavi {
namespace {

using std::chrono::seconds;
using Section = LeftViewController::Section;

/// A record of the family: a single application with a name and links of its own, changed as the test wants.
QJsonObject app(const QString& name, const QJsonObject& changes = {}) {
  QJsonObject record{{"appIdentifiers", QJsonArray{"org.example." + name}},
                     {"appName", QJsonObject{{"en", name}}},
                     {"appURL", name + "://"},
                     {"appURLPro", name + "-pro://"},
                     {"ratingURL", "https://store.example.org/" + name + "/reviews"},
                     {"ratingURLPro", "https://store.example.org/" + name + "-pro/reviews"},
                     {"storeURL", "https://store.example.org/" + name},
                     {"storeURLPro", "https://store.example.org/" + name + "-pro"},
                     {"shouldShow", true},
                     {"calculationsUntilInterstitial", 1}};
  for (auto change = changes.begin(); change != changes.end(); ++change)
    record[change.key()] = change.value();
  return record;
}

const QJsonObject multi{{"isMultiApp", true}};

/// The menu in its drawer, over records that a server on this machine hands out.
class SideMenuTest : public testing::Test {
 protected:
  SideMenuTest() {
    Analytics::clearRecentEvents();
    links.setHandler([this](const QUrl& url) { return openable.contains(url.toString()); },
                     [this](const QUrl& url) {
                       opened.append(url.toString());
                       return true;
                     });
  }

  // Replaced screens are let go of a turn later.
  void TearDown() override { QCoreApplication::processEvents(); }

  /// What the server hands out is fetched and decoded, as after a launch.
  void fetch(const QJsonArray& records) {
    records_ = records;
    bool isLoaded = false;
    const QObject observer;
    notifications.observe(RemoteConfigManager::didLoadMenu, &observer, [&isLoaded] { isLoaded = true; });
    remoteConfig.fetch(seconds(0), [this](FetchStatus status, const std::optional<QString>& error) {
      EXPECT_EQ(status, FetchStatus::success);
      remoteConfigManager.handleFetchResult(status, error);
    });
    ASSERT_TRUE(waitUntil([&isLoaded] { return isLoaded; }));
  }

  LeftViewController& makeMenu(const OnlineTest& onlineTest) {
    menu = std::make_shared<LeftViewController>(
        LeftViewController::Screens{.makeRoot = [this] { return page("fresh"); },
                                    .makeHistory = [this] { return page("history"); }},
        AppServices{remoteConfig, remoteConfigManager, calcManager, preferences, notifications, links,
                    onlineTest, [this] { return context; }, settings});
    toolbar = std::make_shared<AppToolbarController>(page("pages"));
    drawer = std::make_shared<AppNavigationDrawerController>(toolbar,
                                                             std::make_shared<MenuToolbarController>(menu));
    drawer->beginAppearance();
    drawer->endAppearance();
    return *menu;
  }
  LeftViewController& makeMenu() { return makeMenu(online); }

  std::shared_ptr<RecordingController> page(const char* name) {
    return std::make_shared<RecordingController>(QLatin1String(name), pageEvents);
  }

  /// The application rows as "multi, multi | single".
  QString appRows() const {
    if (menu->numberOfSections() == 2) return "none";
    return menu->rowTitles(Section::multiAppsSection).join(", ") + " | " +
           menu->rowTitles(Section::singleAppsSection).join(", ");
  }

  /// What is reported, as "name {parameters}", and forgotten.
  static QStringList takeEvents() {
    QStringList events;
    for (const AnalyticsEvent& event : Analytics::recentEvents()) {
      const auto parameters = QJsonObject::fromVariantMap(event.parameters.value_or(QVariantMap()));
      events.append(event.parameters
                        ? event.name + ' ' + QJsonDocument(parameters).toJson(QJsonDocument::Compact)
                        : event.name);
    }
    Analytics::clearRecentEvents();
    return events;
  }

  const AlertController* alert() const {
    return qobject_cast<AlertController*>(drawer->presentedController());
  }

  QStringList openable;
  QStringList opened;
  ApplicationContext context{.identifier = "org.example.own", .languageCode = "de"};

  ProjectSettings settings{
      .communityLink = QUrl("https://community.example.org/tavi"), .videoHost = {}, .videoPlayer = {}};
  QTemporaryDir folder;
  LoopbackServer server{[this](const QByteArray&, QTcpSocket& socket) {
    const QByteArray apps = QJsonDocument(QJsonObject{{"apps", records_}}).toJson();
    LoopbackServer::answer(socket, "200 OK",
                           QJsonDocument(QJsonObject{{"apps", QString::fromUtf8(apps)}}).toJson());
  }};
  OnlineTest online{server.address()};
  OnlineTest offline{QUrl("http://127.0.0.1:1/"), seconds(5)};
  PreferenceStore preferences{folder.filePath("preferences.sqlite")};
  CalcManager calcManager{preferences};
  NotificationCenter notifications;
  ResourceBundle bundle{folder.path()};
  Links links;
  RemoteConfigService remoteConfig{{.endpoint = server.address(), .allowsLoopbackHttp = true},
                                   folder.filePath("remote.sqlite")};
  RemoteConfigManager remoteConfigManager{remoteConfig, notifications, bundle, [this] { return context; }};

  QStringList pageEvents;
  std::shared_ptr<LeftViewController> menu;
  std::shared_ptr<AppToolbarController> toolbar;
  std::shared_ptr<AppNavigationDrawerController> drawer;

 private:
  QJsonArray records_;
  const ConsoleLines console_;  // The other remote texts are empty, which is said in a line each.
};

TEST_F(SideMenuTest, ListsApplicationsOnlyWhenThereAreSomeOfBothKinds) {
  struct Case {
    QJsonArray records;
    const char* rows;
  };
  const Case cases[] = {
      {{}, "none"},
      {{app("all", multi)}, "none"},
      {{app("sums"), app("lines")}, "none"},
      {{app("sums"), app("all", multi), app("lines"), app("most", multi)}, "all, most | sums, lines"},
      {{app("own"), app("own", multi), app("sums"), app("all", multi)}, "all | sums"},
      {{app("sums"), app("all", {{"isMultiApp", true}, {"shouldShow", false}})}, "none"},
  };
  for (const Case& each : cases) {
    fetch(each.records);
    makeMenu();
    EXPECT_EQ(appRows(), each.rows);
    EXPECT_EQ(menu->rowTitles(Section::mainSection).size(), 4);
    EXPECT_EQ(menu->rowTitles(Section::contactSection).size(), 2);
  }
}

TEST_F(SideMenuTest, NamesAnApplicationInTheUsersLanguageOrInEnglish) {
  const QJsonObject german{{"appName", QJsonObject{{"en", "Sums"}, {"de", "Summen"}}}};
  const QJsonObject nameless{{"appName", QJsonObject{{"fr", "Sommes"}}}};
  fetch({app("a", german), app("b"), app("c", nameless), app("all", multi)});
  struct Case {
    std::optional<QString> language;
    QStringList names;
  };
  const Case cases[] = {{"de", {"Summen", "b", ""}},
                        {"fr", {"Sums", "b", "Sommes"}},
                        {"sv", {"Sums", "b", ""}},
                        {std::nullopt, {"Sums", "b", ""}}};
  for (const Case& each : cases) {
    context.languageCode = each.language;
    makeMenu();
    EXPECT_EQ(menu->rowTitles(Section::singleAppsSection), each.names) << each.language->toStdString();
  }
}

TEST_F(SideMenuTest, HasAHeaderWithABlankOverEachSectionButTheFirst) {
  makeMenu();
  EXPECT_EQ(menu->titleForHeader(Section::mainSection), "");
  EXPECT_EQ(menu->titleForHeader(Section::contactSection), ' ' + localized("Visit us:"));
  EXPECT_EQ(menu->titleForHeader(Section::multiAppsSection), ' ' + localized("All in one:"));
  EXPECT_EQ(menu->titleForHeader(Section::singleAppsSection), ' ' + localized("Other apps:"));
}

TEST_F(SideMenuTest, RefreshesOnlyWhileItIsOnTheScreen) {
  const QJsonArray sums{app("sums"), app("all", multi)};
  const QJsonArray lines{app("lines"), app("all", multi)};
  makeMenu();
  fetch(sums);
  EXPECT_EQ(appRows(), "none") << "before it was ever open";
  drawer->setLeftViewOpened(true);
  EXPECT_EQ(appRows(), "none") << "opening it reads nothing";
  EXPECT_EQ(menu->table()->rowCount(), 5);

  notifications.post(NotificationCenter::applicationDidBecomeActive);
  EXPECT_EQ(appRows(), "all | sums");
  EXPECT_EQ(menu->table()->rowCount(), 7) << "the table follows its lists";
  fetch(lines);
  EXPECT_EQ(appRows(), "all | lines");

  drawer->closeLeftView();
  fetch(sums);
  notifications.post(NotificationCenter::applicationDidBecomeActive);
  EXPECT_EQ(appRows(), "all | lines") << "after it was closed";
}

TEST_F(SideMenuTest, TheCalculateRowPutsFreshPagesInTheDrawerAndClosesIt) {
  makeMenu();
  drawer->setLeftViewOpened(true);
  menu->didSelectRow(Section::mainSection, 0);
  EXPECT_EQ(takeEvents(), QStringList("tapped_menu_calculate"));
  EXPECT_TRUE(pageEvents.contains("fresh did appear"));
  EXPECT_NE(drawer->rootController(), toolbar.get());
  EXPECT_FALSE(drawer->isLeftViewOpened());
}

TEST_F(SideMenuTest, TheHistoryRowKeepsTheToolbar) {
  makeMenu();
  drawer->setLeftViewOpened(true);
  menu->didSelectRow(Section::mainSection, 1);
  EXPECT_EQ(takeEvents(), QStringList("tapped_menu_history"));
  EXPECT_TRUE(pageEvents.contains("history did appear"));
  EXPECT_EQ(drawer->rootController(), toolbar.get());
  EXPECT_FALSE(drawer->isLeftViewOpened());
}

TEST_F(SideMenuTest, WithoutADrawerOnlyTheHistoryRowIsAFatalStop) {
  makeMenu();
  drawer->transition(page("no toolbar"));
  EXPECT_THROW(menu->didSelectRow(Section::mainSection, 1), FatalStop);

  LeftViewController alone({}, {remoteConfig, remoteConfigManager, calcManager, preferences});
  EXPECT_NO_THROW(alone.didSelectRow(Section::mainSection, 0));
  EXPECT_THROW(alone.didSelectRow(Section::mainSection, 1), FatalStop);
}

TEST_F(SideMenuTest, ThePageRowsPresentIntroductionAndPrivacyTextOverTheOpenMenu) {
  makeMenu();
  drawer->setLeftViewOpened(true);
  menu->didSelectRow(Section::mainSection, 2);
  EXPECT_EQ(takeEvents(), QStringList("tapped_onboarding"));
  auto* introduction = qobject_cast<OnboardViewController*>(drawer->presentedController());
  ASSERT_TRUE(introduction);
  EXPECT_EQ(introduction->presentationStyle(), ViewController::PresentationStyle::FormSheet);
  for (int page = 0; page < 5; ++page) introduction->advance();
  EXPECT_EQ(preferences.variant("isOnboardingFinished"), true);

  menu->didSelectRow(Section::mainSection, 3);
  EXPECT_EQ(takeEvents(), QStringList("tapped_privacy_policy"));
  ASSERT_TRUE(waitUntil([this] { return alert() != nullptr; }));
  EXPECT_EQ(alert()->title(), localized("dsgvoTitlePro"));
  EXPECT_TRUE(drawer->isLeftViewOpened());
}

TEST_F(SideMenuTest, AContactRowIsThereOnlyWhileItsAddressIsKnown) {
  fetch({app("own", {{"ratingURLPro", ""}})});
  const auto rows = [this] { return menu->table()->rowCount() - 4; };
  makeMenu().view();
  EXPECT_EQ(rows(), 1);
  menu->disappear();
  fetch({app("own")});
  menu->beginAppearance();
  EXPECT_EQ(rows(), 2) << "a better record came while the menu was closed";
  settings.communityLink = QUrl();
  makeMenu().view();
  EXPECT_EQ(rows(), 1);
}

TEST_F(SideMenuTest, ARecordWithoutARatingPageOpensNothing) {
  fetch({app("own", {{"ratingURLPro", ""}})});
  makeMenu().openRatingPage();
  EXPECT_TRUE(opened.isEmpty());
  EXPECT_EQ(alert(), nullptr);
}

TEST_F(SideMenuTest, TheContactRowsReportTheTapAndThenWaitForTheNetwork) {
  const QString community = settings.communityLink.toString();
  const QString rating = "https://store.example.org/own-pro/reviews";
  openable = {community, rating};
  fetch({app("own")});
  makeMenu();
  menu->didSelectRow(Section::contactSection, 0);
  EXPECT_EQ(takeEvents(), QStringList("tapped_discord"));
  EXPECT_TRUE(opened.isEmpty());
  ASSERT_TRUE(waitUntil([this] { return !opened.isEmpty(); }));

  menu->didSelectRow(Section::contactSection, 1);
  EXPECT_EQ(takeEvents(), QStringList("tapped_rate_app"));
  ASSERT_TRUE(waitUntil([this] { return opened.size() == 2; }));
  EXPECT_EQ(opened, QStringList({community, rating}));
  EXPECT_EQ(takeEvents(), QStringList(R"(Tapped Rating in Menu {"taviApp":"own"})"));
}

TEST_F(SideMenuTest, TheContactRowsOpenNothingWithoutANetwork) {
  makeMenu(offline);
  const QString events[] = {"tapped_discord", "tapped_rate_app"};
  for (int row = 0; row < 2; ++row) {
    menu->didSelectRow(Section::contactSection, row);
    EXPECT_EQ(takeEvents(), QStringList(events[row])) << "before the test has ended";
    ASSERT_TRUE(waitUntil([this] { return alert() != nullptr; }));
    EXPECT_EQ(alert()->title(), localized("noInternet"));
    EXPECT_EQ(alert()->actionTitles(), QStringList(localized("OK")));
    drawer->dismissPresented();
  }
  EXPECT_TRUE(opened.isEmpty());
}

TEST_F(SideMenuTest, TheRatingPageNeedsTheOwnRecordAndALinkThatOpens) {
  makeMenu();
  menu->openRatingPage();
  ASSERT_TRUE(alert());
  EXPECT_EQ(alert()->title(), localized("noInternet"));

  fetch({app("own")});
  menu->openRatingPage();
  EXPECT_TRUE(opened.isEmpty()) << "nothing on this device opens it";
  EXPECT_EQ(takeEvents(), QStringList());
}

TEST_F(SideMenuTest, ADefectiveOwnRecordEndsInTheRatingPage) {
  const QString anywhere = "https://store.example.org/";
  openable = {anywhere};
  const QJsonObject defects[] = {{{"ratingURLPro", "not an address"}},
                                 {{"ratingURLPro", anywhere}, {"appName", QJsonObject{{"de", "Eigene"}}}}};
  for (const QJsonObject& defect : defects) {
    fetch({app("own", defect)});
    RemoteConfigManager fresh(remoteConfig, notifications, bundle, [this] { return context; });
    fresh.reload();
    LeftViewController alone({}, {remoteConfig, fresh, calcManager, preferences, notifications, links});
    EXPECT_THROW(alone.openRatingPage(), FatalStop) << QJsonDocument(defect).toJson().toStdString();
  }
}

TEST_F(SideMenuTest, OpensAnApplicationByTheFirstLinkThatWorksOrElseItsStorePage) {
  const QString store = "https://store.example.org/sums-pro";
  struct Case {
    QStringList openable;
    QJsonObject changes;
    QString opened;
    const char* parameters;
  };
  const Case cases[] = {
      {{"sums-pro://", "sums://", store}, {}, "sums-pro://", R"({"has_app":true,"taviApp":"sums"})"},
      {{"sums://", store}, {}, "sums://", R"({"has_app":true,"taviApp":"sums"})"},
      {{store}, {}, store, R"({"has_app":false,"taviApp":"sums"})"},
      {{store}, {{"storeURLPro", "not an address"}}, "", R"({"has_app":false,"taviApp":"sums"})"},
      {{"sums-pro://"},
       {{"appURL", "not an address"}},
       "sums-pro://",
       R"({"has_app":true,"taviApp":"sums"})"},
      {{store}, {{"appName", QJsonObject{{"de", "S"}}}}, store, R"({"has_app":false,"taviApp":""})"},
  };
  for (const Case& each : cases) {
    fetch({app("all", multi), app("lines"), app("sums", each.changes)});
    makeMenu();
    opened.clear();
    openable = each.openable;
    menu->didSelectRow(Section::singleAppsSection, 1);
    EXPECT_EQ(opened.join(' '), each.opened);
    EXPECT_EQ(takeEvents(), QStringList(QLatin1String("Tapped App Link ") + each.parameters));
  }
  openable = {"all://"};
  menu->didSelectRow(Section::multiAppsSection, 0);
  EXPECT_EQ(opened.last(), "all://");
}

TEST_F(SideMenuTest, AnApplicationsLinkThatIsNoAddressIsAFatalStop) {
  for (const char* field : {"appURL", "appURLPro"}) {
    for (const char* address : {"", "not an address"}) {
      fetch({app("all", multi), app("sums", {{field, address}})});
      makeMenu();
      EXPECT_THROW(menu->didSelectRow(Section::singleAppsSection, 0), FatalStop) << field << " \"" << address;
    }
  }
  EXPECT_TRUE(opened.isEmpty());
  EXPECT_EQ(takeEvents(), QStringList());
}

TEST_F(SideMenuTest, ARowThatIsNotThereIsAFatalStop) {
  makeMenu();
  for (const auto& [section, row] : {std::pair(0, 4), {0, -1}, {1, 2}, {2, 0}, {3, 0}})
    EXPECT_THROW(menu->didSelectRow(section, row), FatalStop) << section << ' ' << row;
}

}  // namespace
}  // namespace tavi
