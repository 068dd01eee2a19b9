#include "charts/tree_chart.h"

#include <bit>
#include <cmath>
#include <limits>

#include "charts/chart_manager.h"
#include "number/fatal_stop.h"
#include "number/math_operation.h"
#include "number/number_text.h"

namespace tavi {

namespace {

constexpr double leafWidth = 33;
constexpr double sideMargins = 200;
constexpr double rootTop = 60;
constexpr double levelHeight = 50;

void visitFrom(const PlacedNode& place, const std::function<bool(const PlacedNode&)>& visit) {
  if (!visit(place)) return;
  const std::vector<TreeNode> children = place.node.children();
  const auto count = static_cast<double>(children.size());
  const double slot = place.width / count;
  for (std::size_t index = 0; index < children.size(); ++index) {
    const double x = place.x - slot * (count * 0.5 - static_cast<double>(index)) + slot * 0.5;
    visitFrom({children[index], x, place.y + levelHeight, place.width * 0.5, place.x}, visit);
  }
}

}  // namespace

std::string TreeNode::value() const {
  if (events_ == 1) return "";
  return events_ % 2 == 1 ? "1" : "0";
}

TreeNode TreeNode::child(bool isSuccess) const {
  TreeNode node;
  node.events_ = events_ << 1U | (isSuccess ? 1U : 0U);
  node.hits_ = isSuccess ? hits_ - 1 : hits_;
  node.trials_ = trials_ - 1;
  node.isHighlighted_ = 0 <= node.hits_ && node.hits_ <= node.trials_;
  return node;
}

std::vector<TreeNode> TreeNode::children() const {
  if (isLeaf()) return {};
  return {child(false), child(true)};
}

std::vector<std::string> TreeNode::chainOfEvents() const {
  std::vector<std::string> chain;
  for (std::uint32_t bit = std::bit_floor(events_) >> 1U; bit != 0; bit >>= 1U) {
    chain.emplace_back((events_ & bit) != 0 ? "1" : "0");
  }
  return chain;
}

void addChildren(TreeNode& parent, std::int64_t hits, std::int64_t trials) {
  const auto depth = static_cast<std::int64_t>(std::bit_width(parent.events_)) - 1;
  if (trials < 0 || trials > mostTrials - depth) fatalStop("a tree that nobody can draw");
  if (hits < std::numeric_limits<std::int64_t>::min() + trials) fatalStop("the hits of a tree overflow");
  parent.hits_ = hits;
  parent.trials_ = trials;
}

TreeChartView TreeChartManager::treeChartView(const BernoulliDistributionTreeChartData& data) {
  TreeChartView view{.chartTitle = data.chartTitle,
                     .probabilitySuccess = generalText(data.probabilityOfSuccess),
                     .probabilityFailure = generalText(1 - data.probabilityOfSuccess),
                     .rootNode = {}};
  addChildren(view.rootNode, data.hits, data.trials);
  const auto trials = static_cast<double>(data.trials);
  view.width = std::exp2(trials) * leafWidth + sideMargins;
  view.height = trials * 60 + 60 + 80;
  return view;
}

void visitNodes(const TreeChartView& tree, const std::function<bool(const PlacedNode&)>& visit) {
  const double middle = tree.width / 2;
  visitFrom({tree.rootNode, middle, rootTop, tree.width - sideMargins, middle}, visit);
}

std::string leafText(const TreeChartView& tree, const TreeNode& leaf) {
  const double success = readGeneralText(tree.probabilitySuccess);
  const double failure = readGeneralText(tree.probabilityFailure);
  double probability = 1;
  std::string events;
  for (const std::string& event : leaf.chainOfEvents()) {
    probability *= event == "0" ? failure : success;
    events += event;
  }
  return generalText(TaviMathOperation::rounded(2, probability * 100)) + "%   " + events;
}

}  // namespace tavi
