#include "remote/remote_config_manager.h"

#include <QFile>

#include <gtest/gtest.h>

#include "number/fatal_stop.h"
#include "platform/test_support.h"

namespace tavi {
namespace {

// The service with values of the test's own, at once and without a network.
class FixedService : public RemoteConfigService {
 public:
  explicit FixedService(const QString& path) : RemoteConfigService({}, path) {}

  QByteArray dataValue(const QString& key) const override { return values.value(key); }
  void activate(ActivateCompletion completion) override {
    ++activations;
    completion(true);
  }

  QMap<QString, QByteArray> values;
  int activations = 0;
};

QByteArray app(const QByteArray& name, const QByteArray& further) {
  return R"({"appIdentifiers": ["org.example.)" + name + R"(", "org.example.)" + name +
         R"(.pro"], "appName": {"en": ")" + name +
         R"("}, "appURL": "", "appURLPro": "", "ratingURL": "", "ratingURLPro": "", "storeURL": "",
         "storeURLPro": "", "calculationsUntilInterstitial": 1, )" +
         further + "}";
}

QByteArray apps(const QByteArrayList& records) {
  return R"({"apps": [)" + records.join(',') + "]}";
}

class RemoteConfigManagerTest : public testing::Test {
 protected:
  RemoteConfigManagerTest() {
    QObject::connect(&notifications_, &NotificationCenter::posted, &notifications_,
                     [this](const QString& name) { posted_.append(name); });
  }

  RemoteConfigManager manager() {
    return RemoteConfigManager(service_, notifications_, bundle_, [this] { return context_; });
  }

  void writeDefaults(const QByteArray& text) {
    QFile file(folder_.filePath("RemoteConfigDefaults.plist"));
    ASSERT_TRUE(file.open(QFile::WriteOnly));
    file.write(text);
  }

  static QString names(const QList<AppMetaData>& list) {
    QStringList names;
    for (const AppMetaData& each : list) names.append(each.appName["en"]);
    return names.join(' ');
  }

  QTemporaryDir folder_;
  FixedService service_{folder_.filePath("remote_config.sqlite")};
  NotificationCenter notifications_;
  ResourceBundle bundle_{folder_.path()};
  ApplicationContext context_{.identifier = "org.example.own", .languageCode = "en"};
  QStringList posted_;
};

const QStringList allNotifications{"didLoadMenu", "didLoadTaviAds", "didLoadUmpReferenceData",
                                   "didLoadVideoTutorialsData"};

QMap<QString, QByteArray> goodValues() {
  return {{"apps", apps({app("own", R"("shouldShow": true)")})},
          {"ads", "{}"},
          {"umpReferenceData",
           R"({"purposeConsents": "", "purposeLegitimateInterests": "", "vendorConsents": "",
               "vendorLegitimateInterests": ""})"},
          {"videoTutorials", R"({"QRX": {"de": ["d"], "en": ["e1", "e2"]}, "other": {"de": ["o"]}})"}};
}

TEST_F(RemoteConfigManagerTest, AFirstStartTakesTheBuiltInListOfApps) {
  const ConsoleLines console;
  RemoteConfigManager manager(service_, notifications_);
  manager.reload();
  EXPECT_EQ(posted_, QStringList("didLoadMenu"));
  EXPECT_EQ(console.lines().size(), 3) << "the three other texts are empty";
  ASSERT_TRUE(manager.currentApp());
  EXPECT_FALSE(manager.currentApp()->appName["en"].isEmpty());
  EXPECT_TRUE(manager.singleApps().isEmpty()) << "this application only";
  EXPECT_TRUE(manager.multiApps().isEmpty()) << "this application only";
  EXPECT_TRUE(manager.ads().isEmpty());
  EXPECT_FALSE(manager.umpReferenceData());
  EXPECT_FALSE(manager.videoTutorials());
}

TEST_F(RemoteConfigManagerTest, ReloadFillsEveryFieldInOrder) {
  service_.values = goodValues();
  RemoteConfigManager remote = manager();
  remote.reload();
  EXPECT_EQ(posted_, allNotifications);
  EXPECT_EQ(names(remote.apps()), "own");
  EXPECT_TRUE(remote.umpReferenceData());
}

TEST_F(RemoteConfigManagerTest, ABadTextLeavesItsFieldAloneWithOneLine) {
  service_.values = goodValues();
  RemoteConfigManager remote = manager();
  remote.reload();
  posted_.clear();
  const VideoTutorials videos = *remote.videoTutorials();
  for (QByteArray& text : service_.values) text = "{\"apps\": 1}";
  const ConsoleLines console;
  remote.reload();
  EXPECT_TRUE(posted_.isEmpty());
  EXPECT_EQ(names(remote.apps()), "own") << "there is no built-in list to take its place";
  EXPECT_EQ(remote.videoTutorials(), videos);
  EXPECT_TRUE(remote.umpReferenceData());
  EXPECT_EQ(console.lines().size(), 3);
}

TEST_F(RemoteConfigManagerTest, OneBadRecordGivesTheBuiltInListAsAWhole) {
  service_.values["apps"] = apps({app("one", R"("shouldShow": true)"), app("two", "\"isMultiApp\": true")});
  RemoteConfigManager remote(service_, notifications_);
  remote.loadApps(service_);
  EXPECT_EQ(remote.apps().size(), 1) << "this application only";
  EXPECT_FALSE(names(remote.apps()).contains("one "));
}

TEST_F(RemoteConfigManagerTest, ADefectiveBuiltInListChangesNothing) {
  RemoteConfigManager remote = manager();
  for (const QByteArray& text :
       {QByteArray("<plist><dict>"), QByteArray("<plist><dict><key>apps</key><true/></dict></plist>")}) {
    writeDefaults(text);
    remote.loadApps(service_);
    EXPECT_TRUE(posted_.isEmpty());
  }
  writeDefaults("<plist><array/></plist>");
  EXPECT_THROW(remote.loadApps(service_), FatalStop);
}

TEST_F(RemoteConfigManagerTest, ListsTheOtherAppsThatMayBeShown) {
  service_.values["apps"] =
      apps({app("own", R"("shouldShow": true)"), app("a", R"("shouldShow": true)"),
            app("b", R"("shouldShow": true, "isMultiApp": false)"), app("c", R"("shouldShow": false)"),
            app("d", R"("shouldShow": true, "isMultiApp": true)"),
            app("e", R"("shouldShow": false, "isMultiApp": true)")});
  RemoteConfigManager remote = manager();
  remote.loadApps(service_);
  EXPECT_EQ(names(remote.singleApps()), "a b");
  EXPECT_EQ(names(remote.multiApps()), "d");
  context_.identifier = "org.example.d.pro";
  EXPECT_EQ(names(remote.singleApps()), "own a b");
  EXPECT_EQ(names(remote.multiApps()), "");
  context_.identifier = std::nullopt;
  EXPECT_TRUE(remote.singleApps().isEmpty());
  EXPECT_TRUE(remote.multiApps().isEmpty());
}

TEST_F(RemoteConfigManagerTest, TheOwnRecordIsSoughtUntilFoundAndThenStays) {
  RemoteConfigManager remote = manager();
  EXPECT_FALSE(remote.currentApp());
  service_.values = goodValues();
  remote.loadApps(service_);
  context_.identifier = std::nullopt;
  EXPECT_FALSE(remote.currentApp());
  context_.identifier = "org.example.own.pro";
  ASSERT_TRUE(remote.currentApp());
  service_.values["apps"] = apps({});
  remote.loadApps(service_);
  EXPECT_EQ(remote.currentApp()->appName["en"], "own");
}

TEST_F(RemoteConfigManagerTest, VideoLinksPutTheUsersLanguageFirst) {
  RemoteConfigManager remote = manager();
  EXPECT_TRUE(remote.videoLinks(VideoTopic::powersAndRoots).isEmpty());

  const char* both = R"({"QRX": {"de": ["d"], "en": ["e1", "e2"], "sv": ["s"]}})";
  const char* germanOnly = R"({"QRX": {"de": ["d"]}})";
  struct Case {
    std::optional<QString> language;
    const char* tutorials;
    QStringList links;
  };
  const Case cases[] = {{"de", both, {"d", "e1", "e2"}},
                        {"en", both, {"e1", "e2"}},
                        {"sv", both, {"e1", "e2"}},
                        {"ko", both, {"e1", "e2"}},
                        {std::nullopt, both, {"e1", "e2"}},
                        {"de", germanOnly, {"d"}},
                        {"fr", germanOnly, {}},
                        {"en", germanOnly, {}},
                        {"de", R"({"other": {"de": ["d"]}})", {}},
                        {"de", "{}", {}}};
  for (const Case& each : cases) {
    context_.languageCode = each.language;
    service_.values["videoTutorials"] = each.tutorials;
    remote.loadVideoTutorials(service_);
    EXPECT_EQ(remote.videoLinks(VideoTopic::powersAndRoots), each.links)
        << each.language.value_or("none").toStdString() << ' ' << each.tutorials;
  }
}

TEST_F(RemoteConfigManagerTest, TheAnswerOfAFetchIsActivatedOrUsesWhatIsThere) {
  service_.values = goodValues();
  RemoteConfigManager remote = manager();

  remote.handleFetchResult(FetchStatus::failure, "no network");
  EXPECT_EQ(posted_, allNotifications);
  EXPECT_EQ(service_.activations, 0);

  posted_.clear();
  {
    const ConsoleLines console;
    remote.handleFetchResult(FetchStatus::throttled, std::nullopt);
    EXPECT_EQ(console.lines(), QStringList({"Config not fetched", "Error: No error available."}));
  }
  EXPECT_TRUE(posted_.isEmpty());

  remote.handleFetchResult(FetchStatus::success, std::nullopt);
  EXPECT_EQ(service_.activations, 1);
  EXPECT_EQ(posted_, allNotifications);
}

}  // namespace
}  // namespace tavi
