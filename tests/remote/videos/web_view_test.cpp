#include <QFileInfo>
#include <QLibraryInfo>
#include <QPointer>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include "platform/application_context.h"
#include "platform/test_support.h"
#include "remote/videos/video_row_controller.h"

namespace tavi {
namespace {

/// One tile in a window, with the system's web view as its player and this machine as the video service.
class WebViewTest : public testing::Test {
 protected:
  void SetUp() override {
    if (!QFileInfo::exists(QLibraryInfo::path(QLibraryInfo::PluginsPath) + "/webview"))
      GTEST_SKIP() << "this system has no web view";
    // The engine behind it does not start as root with its sandbox.
    qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    nameApplication();
    settings.videoHost = "videos.example.org";
    settings.videoPlayer = service.address();
    page.setPage(engine, {});
    window.resize(400, 400);
    window.show();
  }

  void unlock() {
    preferences.setValue("isYoutubeDsgvoAccepted", true);
    videos.awakeFromNib();
  }
  void showTile() {
    QQmlComponent component(&engine);
    component.setData("import Tavi\nVideoTile { width: 300; height: 300; isInSight: true }", {});
    tile.reset(qobject_cast<QQuickItem*>(component.createWithInitialProperties(
        {{"controller", QVariant::fromValue(&videos)},
         {"link", "https://videos.example.org/watch?v=abcdefghi_-&t=30s"}})));
    ASSERT_TRUE(tile) << component.errorString().toStdString();
    tile->setParentItem(window.contentItem());
  }
  bool isCovered() { return tile->findChild<QQuickItem*>("coveringView")->isVisible(); }

  /// The service: its script asks for "played" with what it was told and keeps that connection open.
  void serve(const QByteArray& request, QTcpSocket& socket) {
    if (request.startsWith("GET /iframe_api ")) {
      LoopbackServer::answer(
          socket, "200 OK",
          "window.YT = { Player: function (element, options) {"
          "  fetch('" +
              service.address().toEncoded() +
              "played?' + [element, options.videoId,"
              "    options.playerVars.start, options.playerVars.iv_load_policy, location.origin]);"
              "  setTimeout(options.events.onReady);"
              "} };"
              "onYouTubeIframeAPIReady();",
          "Content-Type: text/javascript\r\n");
      return;
    }
    played.append(request.left(request.indexOf(" HTTP")));
    stream = &socket;
  }

  QTemporaryDir folder;
  PreferenceStore preferences{folder.filePath("preferences.sqlite")};
  ProjectSettings settings;
  Links links;
  QString opened;
  QByteArrayList played;
  QPointer<QTcpSocket> stream;
  LoopbackServer service{[this](const QByteArray& request, QTcpSocket& socket) { serve(request, socket); }};
  QQmlEngine engine;
  QQuickWindow window;
  ViewController page;
  VideoRowController videos{page, preferences, settings, links};
  std::unique_ptr<QQuickItem> tile;
};

TEST_F(WebViewTest, PlaysAVideoOnceTheUserAgreedAndIsLetGoWhenHeWithdraws) {
  showTile();
  unlock();
  ASSERT_TRUE(waitUntil([this] { return !isCovered(); })) << "ready";
  ASSERT_TRUE(waitUntil([this] { return stream != nullptr; }));
  EXPECT_EQ(played, QByteArrayList{"GET /played?player,abcdefghi_-,30,1,https://tavi.example.org"});

  preferences.setValue("isYoutubeDsgvoAccepted", false);
  videos.awakeFromNib();
  EXPECT_TRUE(isCovered());
  // The page itself goes by deferred deletion, which this waits for, too.
  EXPECT_TRUE(QTest::qWaitFor([this] { return stream == nullptr; }, 10000))
      << "the connection ends with the player";
}

TEST_F(WebViewTest, OpensTheBrowserWhenThePlayerDoesNotCome) {
  service.setHandler(
      [](const QByteArray&, QTcpSocket& socket) { LoopbackServer::answer(socket, "404 Not Found", ""); });
  links.setHandler([](const QUrl&) { return true; },
                   [this](const QUrl& url) {
                     opened = url.toString();
                     return true;
                   });
  unlock();
  showTile();
  ASSERT_TRUE(waitUntil([this] { return tile->property("opensOutside").toBool(); }));
  QMetaObject::invokeMethod(tile->findChild<QQuickItem*>("coveringView"), "clicked");
  EXPECT_EQ(opened, "https://videos.example.org/watch?v=abcdefghi_-&t=30s");
}

}  // namespace
}  // namespace tavi
