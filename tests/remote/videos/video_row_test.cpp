#include <QQmlEngine>
#include <QQuickItem>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include "platform/test_support.h"
#include "remote/introduction/onboard_view_controller.h"
#include "remote/videos/video_page.h"
#include "remote/videos/video_row_controller.h"
#include "shell/frame/alert_controller.h"
#include "solution/solution_stage.h"

namespace tavi {
namespace {

TEST(VideoPageTest, NothingOfALinkReachesThePageButAsAText) {
  const QUrl player("https://player.example.org");
  const QString page = videoPage({.identifier = "</script>\"x", .start = 30}, player);
  EXPECT_TRUE(page.contains(R"("videoId":"\u003c/script>\"x")")) << page.toStdString();
  EXPECT_TRUE(page.contains(R"("playerVars":{"iv_load_policy":1,"start":30})"));
  EXPECT_TRUE(page.contains("\"https://player.example.org/iframe_api\""));
  EXPECT_FALSE(videoPage({.identifier = "abcdefghi_-", .start = {}}, player).contains("start"));
}

/// A solution with its row of videos, whose service is this machine.
class VideoRowTest : public SolutionStage {
 protected:
  VideoRowTest() {
    settings.videoHost = "videos.example.org";
    settings.videoPlayer = service.address();
    solution = std::make_shared<SolutionViewController>(remoteConfigManager, notifications, preferences,
                                                        settings, links);
    solution->setPage(engine, "solution/SolutionPage.qml");
    links.setHandler([](const QUrl&) { return true; },
                     [this](const QUrl& url) {
                       opened = url.toString();
                       return true;
                     });
  }

  ViewController& top() { return *root; }
  QUrl playerFile(const QByteArray& qml) {
    QFile file(folder.filePath("Player.qml"));
    EXPECT_TRUE(file.open(QFile::WriteOnly) && file.write(qml) > 0);
    return QUrl::fromLocalFile(file.fileName());
  }
  VideoRowController& videos() { return *solution->videos(); }
  void answer(int action) {
    const auto alert = [this] { return qobject_cast<AlertController*>(solution->presentedController()); };
    ASSERT_TRUE(waitUntil([&] { return alert() != nullptr; }));
    EXPECT_EQ(alert()->actionTitles().size(), 2);
    alert()->choose(action);
  }

  ProjectSettings settings;
  Links links;
  QString opened;
  LoopbackServer service{[](const QByteArray&, QTcpSocket& socket) {
    LoopbackServer::answer(
        socket, "200 OK",
        "window.YT = { Player: function (name, options) { setTimeout(options.events.onReady, 0) } };"
        "onYouTubeIframeAPIReady();",
        "Content-Type: text/javascript\r\n");
  }};
  const QString link = "https://videos.example.org/watch?v=abcdefghi_-&t=30s";
};

TEST_F(VideoRowTest, NothingIsAskedOfTheServiceBeforeTheUserAgreesAndPlayersGoWhenHeWithdraws) {
  videos().setPlayerSource(
      playerFile("import QtQuick\nItem {\n property bool isReady: false\n function play(page, address) {\n"
                 "const r = new XMLHttpRequest; r.onreadystatechange = () => isReady = r.readyState === 4;\n"
                 "r.open('GET', page.match(/src=\"(.*)\"/)[1]); r.send() } }"));
  QQmlComponent component(&engine);
  component.setData("import QtQuick\nimport Tavi\nVideoTile { width: 200; height: 200; isInSight: true }",
                    {});
  const std::unique_ptr<QObject> tile(component.createWithInitialProperties(
      {{"controller", QVariant::fromValue(&videos())}, {"link", link}}));
  ASSERT_TRUE(tile) << component.errorString().toStdString();

  videos().awakeFromNib();
  EXPECT_TRUE(videos().isLocked());
  EXPECT_TRUE(videos().page(link).isEmpty());
  videos().tappedLockingViewButton();
  answer(1);
  QTest::qWait(50);
  EXPECT_TRUE(videos().isLocked()) << "declined";
  EXPECT_TRUE(service.requests().isEmpty());

  videos().tappedLockingViewButton();
  answer(0);
  EXPECT_FALSE(videos().isLocked());
  EXPECT_EQ(preferences.variant("isYoutubeDsgvoAccepted"), true);
  auto* guide = qobject_cast<OnboardViewController*>(solution->presentedController());
  ASSERT_TRUE(guide) << "the guide follows";
  guide->cancel();
  ASSERT_TRUE(waitUntil([&] { return tile->property("isReady").toBool(); }));
  EXPECT_FALSE(service.requests().isEmpty());

  tile->setProperty("isInSight", false);
  EXPECT_FALSE(tile->property("isReady").toBool()) << "let go out of sight";
  tile->setProperty("isInSight", true);
  ASSERT_TRUE(waitUntil([&] { return tile->property("isReady").toBool(); }));
  videos().tappedPrivacyButton();
  answer(1);
  EXPECT_TRUE(videos().isLocked());
  EXPECT_FALSE(tile->property("isReady").toBool()) << "let go at once";
  EXPECT_EQ(preferences.variant("isYoutubeDsgvoAccepted"), false);

  videos().tappedPrivacyButton();
  answer(0);
  EXPECT_TRUE(videos().isLocked()) << "until the row is made anew";
  videos().awakeFromNib();
  EXPECT_FALSE(videos().isLocked());
  EXPECT_EQ(solution->presentedController(), nullptr) << "the guide does not show by itself";
}

TEST_F(VideoRowTest, WithoutAWebViewATapOpensTheBrowser) {
  preferences.setValue("isYoutubeDsgvoAccepted", true);
  videos().awakeFromNib();
  const QStringList plugins = QCoreApplication::libraryPaths();
  QCoreApplication::setLibraryPaths({folder.path()});
  EXPECT_EQ(videos().player(), nullptr) << "the module alone is not enough";
  QCoreApplication::setLibraryPaths(plugins);
  videos().setPlayerSource(playerFile("import No.Such.Module\nItem {}"));
  EXPECT_EQ(videos().player(), nullptr);
  videos().openOutside("https:videos.example.org/shorts/a/../b?c&de");
  EXPECT_EQ(opened, "https://videos.example.org/watch?v=a%2F..%2Fb%3Fc%26de");
  videos().openOutside(link);
  EXPECT_EQ(opened, "https://videos.example.org/watch?v=abcdefghi_-&t=30s");
}

}  // namespace
}  // namespace tavi
