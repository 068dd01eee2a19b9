#include "remote/videos/video_link.h"

#include <ostream>

#include <gtest/gtest.h>

namespace tavi {

static void PrintTo(const VideoLink& link, std::ostream* out) {
  *out << link.identifier.toStdString() << " at " << link.start.value_or(-1);
}

namespace {

constexpr std::nullopt_t none = std::nullopt;

TEST(VideoLinkTest, ReadsTheTwoFormsAndNothingElse) {
  const VideoLink whole{.identifier = "abcdefghi_-", .start = none};
  const auto from = [](qint64 start) { return VideoLink{"abcdefghi_-", start}; };
  const struct {
    QString link;
    std::optional<VideoLink> video;
  } cases[] = {
      {"https://www.example.org/watch?v=abcdefghi_-", whole},
      {"https://www.example.org/watch?v=abcdefghi_-&t=30s", from(30)},
      {"https://www.example.org/watch?v=abcdefghi_-&t=0s", from(0)},
      {"https://www.example.org/watch?v=abcdefghi_-&list=abc&t=90s", from(90)},
      {"https://www.example.org/watch?v=abcdefghi_-&t=90s&list=abc", whole},
      {"https://www.example.org/watch?v=&&abcdefghi_-&&t=7s&&", from(7)},
      {"https://www.example.org/watch?v=abcdefghi_-&t=30", whole},
      {"https://www.example.org/watch?v=abcdefghi_-&t=s", whole},
      {"https://www.example.org/watch?v=abcdefghi_-&t=", whole},
      {"https://www.example.org/watch?v=abcdefghi_-&t=1m30s", whole},
      {"https://www.example.org/watch?v=abcdefghi_-&t=1.5s", whole},
      {"https://www.example.org/watch?v=abcdefghi_-&t=٣s", whole},
      {"https://www.example.org/watch?v=abcdefghi_-&t=9223372036854775807s", from(9223372036854775807)},
      {"https://www.example.org/watch?v=abcdefghi_-&t=9223372036854775808s", whole},
      {"https://www.example.org/watch?v=t=12345678s", VideoLink{"t=12345678s", 12345678}},
      {"https:www.example.org/shorts/abcdefghi_-", whole},
      {"https://www.example.org/watch?v=abcdefghi_", none},
      {"https://www.example.org/watch?v=abcdefghi_-x", none},
      {"https://www.example.org/watch?v=", none},
      {"https://www.example.org/watch?v=&&&", none},
      {"https://www.example.org/shorts/abcdefghi_-", none},
      {"https:www.example.org/shorts/abcdefghi_-&t=30s", none},
      {"https:www.example.org/watch?v=abcdefghi_-", none},
      {"http://www.example.org/watch?v=abcdefghi_-", none},
      {"https://www.example.org.evil.example/watch?v=abcdefghi_-", none},
      {"https://evil.example/watch?v=abcdefghi_-", none},
      {"HTTPS://www.example.org/watch?v=abcdefghi_-", none},
      {"javascript:alert(1)", none},
      {"", none},
  };
  for (const auto& [link, video] : cases)
    EXPECT_EQ(parseVideoLink(link, "www.example.org"), video) << link.toStdString();
}

}  // namespace
}  // namespace tavi
