// Any bytes are a request: it is read, and what it describes worked out, or it is refused, without a fault of
// memory or arithmetic and in bounded time and memory.
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "charts/chart_manager.h"
#include "charts/chart_reader.h"
#include "number/fatal_stop.h"

using namespace tavi;

namespace {

// The parts of a view that are worked out when it is drawn.
void lookAt(const TreeChartView& tree) {
  constexpr std::size_t enoughNodes = 5000;
  std::size_t nodes = 0;
  visitNodes(tree, [&](const PlacedNode& place) {
    if (place.node.isLeaf() && leafText(tree, place.node).empty()) std::abort();
    return ++nodes < enoughNodes;
  });
}
void lookAt(const UnitCircleChartView& circle) {
  for (const double progress : {0.0, 0.3, 0.9, 1.0}) {
    if (unitCircleState(circle, progress).turns > circle.turns.size()) std::abort();
  }
}
void lookAt(const CoordinateChartView&) {}
void lookAt(const DistributionFunctionPresentationView&) {}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto read = readChartRequest({reinterpret_cast<const char*>(data), size});
  const auto* request = std::get_if<ChartRequest>(&read);
  if (request == nullptr) return 0;
  try {
    if (!request->charts.empty()) ChartManager::chartFrame(*request->charts.front(), request->width);
    if (const auto view = ChartManager::chartView(request->charts)) {
      std::visit([](const auto& each) { lookAt(each); }, *view);
    }
  } catch (const FatalStop&) {
  }
  return 0;
}
