#include "output/localized_string.h"

#include <gtest/gtest.h>

namespace tavi {
namespace {

TEST(LocalizedText, AsksTheLookupOnceAndKeepsTheAnswer) {
  int calls = 0;
  LocalizedText::installLookup([&calls](std::string_view key, std::string_view comment) {
    ++calls;
    return std::string(key) + "/" + std::string(comment);
  });
  const LocalizedText text("noSolution", "a comment");
  EXPECT_EQ(text.text(), "noSolution/a comment");
  LocalizedText::installLookup(nullptr);
  EXPECT_EQ(text.text(), "noSolution/a comment");
  EXPECT_EQ(calls, 1);
  EXPECT_EQ(LocalizedText("touchTounlock", "Touch to unlock").text(), "touchTounlock");
}

}  // namespace
}  // namespace tavi
