#include "charts/tree_chart.h"

#include <limits>
#include <set>

#include <gtest/gtest.h>

#include "charts/chart_manager.h"
#include "number/fatal_stop.h"

namespace tavi {
namespace {

TreeChartView tree(std::int64_t hits, std::int64_t trials, double probability = 0.5) {
  BernoulliDistributionTreeChartData data;
  data.probabilityOfSuccess = probability;
  data.hits = hits;
  data.trials = trials;
  return TreeChartManager::treeChartView(data);
}

std::vector<PlacedNode> nodes(const TreeChartView& view) {
  std::vector<PlacedNode> placed;
  visitNodes(view, [&](const PlacedNode& place) {
    placed.push_back(place);
    return true;
  });
  return placed;
}

// The events of each node that is highlighted, in drawing order.
std::vector<std::string> highlighted(const TreeChartView& view) {
  std::vector<std::string> chains;
  for (const PlacedNode& place : nodes(view)) {
    if (!place.node.isHighlighted()) continue;
    std::string& chain = chains.emplace_back();
    for (const std::string& event : place.node.chainOfEvents()) chain += event;
  }
  return chains;
}

TEST(TreeChart, HighlightsWhatCanStillReachTheHits) {
  using Chains = std::vector<std::string>;
  EXPECT_EQ(highlighted(tree(1, 2)), (Chains{"", "0", "01", "1", "10"}));
  EXPECT_EQ(highlighted(tree(0, 2)), (Chains{"", "0", "00"}));
  EXPECT_EQ(highlighted(tree(0, 0)), Chains{""});
  EXPECT_EQ(highlighted(tree(-1, 3)), Chains{""});
  EXPECT_EQ(highlighted(tree(4, 3)), Chains{""});
  EXPECT_EQ(highlighted(tree(std::numeric_limits<std::int64_t>::max(), 3)), Chains{""});
}

TEST(TreeChart, HasALeafOfEachSequenceAtAPlaceOfItsOwn) {
  for (std::int64_t trials = 0; trials <= 8; ++trials) {
    std::set<std::string> sequences;
    double last = 100 - 33;
    for (const PlacedNode& place : nodes(tree(trials / 2, trials))) {
      EXPECT_EQ(place.node.isLeaf(), place.y == 60 + 50 * static_cast<double>(trials));
      if (!place.node.isLeaf()) continue;
      sequences.insert(leafText(tree(0, trials), place.node));
      EXPECT_EQ(place.x - last, last < 100 ? 49.5 : 33);
      last = place.x;
    }
    EXPECT_EQ(sequences.size(), std::size_t{1} << trials);
  }
}

TEST(TreeChart, WritesTheProbabilityOfAPathFromTheTextsShown) {
  EXPECT_EQ(leafText(tree(0, 0), TreeNode()), "100%   ");
  const TreeChartView dice = tree(1, 2, 1.0 / 6);
  EXPECT_EQ(dice.probabilitySuccess, "0.166667");
  EXPECT_EQ(dice.probabilityFailure, "0.833333");
  EXPECT_EQ(leafText(dice, dice.rootNode.children()[1].children()[0]), "13.89%   10");
  EXPECT_EQ(leafText(tree(0, 1, 1e-7), tree(0, 1).rootNode.children()[1]), "0%   1");
}

TEST(TreeChart, StopsAtATreeThatNobodyCanDraw) {
  EXPECT_THROW(tree(1, 21), FatalStop);
  EXPECT_THROW(tree(1, -1), FatalStop);
  EXPECT_THROW(tree(1, std::numeric_limits<std::int64_t>::max()), FatalStop);
  EXPECT_THROW(tree(std::numeric_limits<std::int64_t>::min(), 1), FatalStop);
  TreeNode leaf = tree(10, 10).rootNode.children()[0];
  EXPECT_NO_THROW(addChildren(leaf, 1, 19));
  EXPECT_THROW(addChildren(leaf, 1, 20), FatalStop);
}

}  // namespace
}  // namespace tavi
