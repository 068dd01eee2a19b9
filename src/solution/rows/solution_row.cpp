#include "solution/rows/solution_row.h"

namespace tavi {

namespace {

template <typename... Functions>
struct Overloaded : Functions... {
  using Functions::operator()...;
};
template <typename... Functions>
Overloaded(Functions...) -> Overloaded<Functions...>;

}  // namespace

const char* kindOf(const SolutionRow& row) {
  return std::visit([](const auto& content) { return content.kind; }, row.content);
}

std::unique_ptr<RowPainter> makePainter(const SolutionRow& row, const RowTarget& target) {
  const double height = row.height.at(target.viewWidth);
  return std::visit(
      Overloaded{[&](const SolutionStepTableViewCell& step) { return makePainter(step, height, target); },
                 [&](const ChartTableViewCell& charts) { return makePainter(charts, height); },
                 [](const VideoCollectionTableViewCell& videos) { return makePainter(videos); }},
      row.content);
}

}  // namespace tavi
