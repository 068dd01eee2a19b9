#include "output/string_output.h"

#include <gtest/gtest.h>

#include "output/localized_string.h"

namespace tavi {
namespace {

TEST(StringOutput, NumbersOnlyNumberedStepsAndStartsAfreshAfterAReset) {
  TaviStringOutput output;
  output.addStep("Your Input", "2^{3}");
  EXPECT_EQ(output.solutionStepCounter, 0);
  EXPECT_EQ(output.numberedTitle("Convert"), "Step 1    Convert");
  EXPECT_EQ(output.numberedTitle("Extract a root"), "Step 2    Extract a root");
  EXPECT_EQ(output.solutionSteps.size(), 1U);
  output.reset();
  EXPECT_TRUE(output.solutionSteps.empty());
  EXPECT_EQ(output.numberedTitle("Convert"), "Step 1    Convert");
}

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
