#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "charts/chart_data.h"

namespace tavi {

/// The deepest tree that is drawn; a deeper one is a fatal stop.
inline constexpr std::int64_t mostTrials = 20;

/// A node of the tree of a repeated trial. It makes its children when it is asked for them, so that a tree
/// costs no more than what is looked at of it.
class TreeNode {
 public:
  /// "0" for a failure, "1" for a success, empty for the root.
  [[nodiscard]] std::string value() const;

  /// Whether its path can still end with the wanted number of hits.
  [[nodiscard]] bool isHighlighted() const { return isHighlighted_; }

  /// A leaf has none, any other node a failure and a success.
  [[nodiscard]] std::vector<TreeNode> children() const;
  [[nodiscard]] bool isLeaf() const { return trials_ == 0; }

  /// How many levels of nodes hang from it.
  [[nodiscard]] std::int64_t trials() const { return trials_; }

  /// The values from below the root down to this node, "0" and "1" each.
  [[nodiscard]] std::vector<std::string> chainOfEvents() const;

 private:
  friend void addChildren(TreeNode& parent, std::int64_t hits, std::int64_t trials);

  [[nodiscard]] TreeNode child(bool isSuccess) const;

  std::uint32_t events_ = 1;  // a bit for each, the latest lowest, under a leading one
  bool isHighlighted_ = true;
  std::int64_t hits_ = 0;    // still wanted
  std::int64_t trials_ = 0;  // still to come
};

/// Lets all sequences of `trials` further trials hang from a leaf, those highlighted that can bring `hits`. A
/// tree of less than no trials or of more than `mostTrials`, and hits that cannot be counted down so far:
/// fatal stop.
void addChildren(TreeNode& parent, std::int64_t hits, std::int64_t trials);

struct TreeChartView {
  std::string chartTitle;
  std::string probabilitySuccess;
  std::string probabilityFailure;
  TreeNode rootNode;
  double width = 0;  ///< Of the whole drawing, in device-independent pixels.
  double height = 0;
};

inline constexpr double treeNodeDiameter = 30;

/// A node and where it is drawn.
struct PlacedNode {
  TreeNode node;
  double x = 0;        ///< Of the middle of its circle.
  double y = 0;        ///< Of the upper edge of its circle.
  double width = 0;    ///< Of what hangs from it: half to either side of it.
  double parentX = 0;  ///< Of the node that the branch to it comes from, whose circle ends 20 above `y`.
};

/// Goes through the tree in drawing order: a node, its failure, its success. `visit` tells whether to go on
/// to what hangs from the node.
void visitNodes(const TreeChartView& tree, const std::function<bool(const PlacedNode&)>& visit);

/// The probability of a leaf's path and its events, such as "12.5%   010".
std::string leafText(const TreeChartView& tree, const TreeNode& leaf);

}  // namespace tavi
