#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "platform/analytics.h"
#include "platform/localization.h"
#include "platform/test_support.h"
#include "remote/rating/rating_view_controller.h"
#include "shell/frame/alert_controller.h"

namespace tavi {
namespace {

TEST(RatingPromptTest, ManyStarsLeadToTheStoreAndFewToThanks) {
  LoopbackServer server{
      [](const QByteArray&, QTcpSocket& socket) { LoopbackServer::answer(socket, "200 OK", {}); }};
  const OnlineTest online(server.address());
  const OnlineTest offline(QUrl("http://127.0.0.1:1/"), std::chrono::seconds(5));
  const struct {
    std::optional<double> rating;  ///< None is the cancel button.
    bool isOnline;
    bool opensStore;
    const char* alert;  ///< Key of its title.
    bool isDone;
    qlonglong counter;
  } cases[] = {{3.9, true, false, "Thanks", true, 0},       {1.0, false, false, "Thanks", true, 0},
               {4.0, true, true, "Thanks", true, 0},        {5.0, true, true, "Thanks", true, 0},
               {5.0, false, false, "noInternet", false, 5}, {std::nullopt, true, false, "", false, 5}};
  for (const auto& [rating, isOnline, opensStore, alert, isDone, counter] : cases) {
    const QTemporaryDir folder;
    PreferenceStore preferences(folder.filePath("preferences.sqlite"));
    preferences.setValue("counterForRating", 1);
    Analytics::clearRecentEvents();
    ViewController page;
    bool isStoreOpen = false;
    const auto prompt = std::make_shared<RatingViewController>(preferences, isOnline ? online : offline,
                                                               [&isStoreOpen] { isStoreOpen = true; });
    prompt->presentIfNeeded(page);
    EXPECT_EQ(page.presentedController(), nullptr) << "it comes a turn later";
    ASSERT_TRUE(waitUntil([&] { return page.presentedController() == prompt.get(); }));
    if (rating) {
      prompt->rating = *rating;
      prompt->tappedSendRatingButton();
    } else {
      prompt->tappedCancelRatingButton();
    }
    const AnalyticsEvent& event = Analytics::recentEvents().back();
    EXPECT_EQ(event.name, rating ? "tapped_rated_app" : "tapped_rated_app_cancel");
    if (rating) {
      EXPECT_EQ(event.parameters, QVariantMap({{"app", "qr"}, {"rating", *rating}}));
    }
    const auto shown = [&page] { return qobject_cast<AlertController*>(page.presentedController()); };
    if (*alert) {
      ASSERT_TRUE(waitUntil([&] { return shown() != nullptr; })) << alert;
      EXPECT_EQ(shown()->title(), localized(alert));
      shown()->choose(0);
    }
    EXPECT_EQ(isStoreOpen, opensStore);
    EXPECT_EQ(preferences.variant("isRatingAlreadyDone").toBool(), isDone);
    EXPECT_EQ(preferences.variant("counterForRating"), counter);
    prompt->presentIfNeeded(page);
    QCoreApplication::processEvents();
    EXPECT_EQ(page.presentedController(), nullptr) << "once in a process";
    EXPECT_EQ(preferences.variant("counterForRating"), counter);
  }
}

}  // namespace
}  // namespace tavi
