#include <algorithm>
#include <cmath>
#include <vector>

#include "typeset/compositor.h"

namespace tavi::typeset {
namespace {

// TeX's \nulldelimiterspace in place of the invisible delimiter, in ems of the line.
constexpr double invisibleDelimiterWidth = 0.12;

// How far a part may be pushed over the one below it.
struct Joint {
  double least = 0;
  double most = 0;
};

Joint jointOf(const AssemblyPart& below, const AssemblyPart& above, double leastOverlap) {
  const double most = std::min(below.endConnector, above.startConnector);
  return {.least = std::min(leastOverlap, most), .most = most};
}

// The parts with each extender `repeats` times.
std::vector<AssemblyPart> withExtenders(const std::vector<AssemblyPart>& parts, std::size_t repeats) {
  std::vector<AssemblyPart> sequence;
  for (const AssemblyPart& part : parts) sequence.insert(sequence.end(), part.isExtender ? repeats : 1, part);
  return sequence;
}

// The height of a sequence whose joints overlap the least, and how much of it can be taken back.
struct Reach {
  double tallest = 0;
  double slack = 0;
};

Reach reachOf(const std::vector<AssemblyPart>& sequence, double leastOverlap) {
  Reach reach;
  for (std::size_t index = 0; index < sequence.size(); ++index) {
    reach.tallest += sequence[index].length;
    if (index == 0) continue;
    const Joint joint = jointOf(sequence[index - 1], sequence[index], leastOverlap);
    reach.tallest -= joint.least;
    reach.slack += joint.most - joint.least;
  }
  return reach;
}

// The fewest extenders that reach `total`: each further round of them adds the same height.
std::size_t extenderRepeats(const std::vector<AssemblyPart>& parts, double total, double leastOverlap) {
  const double none = reachOf(withExtenders(parts, 0), leastOverlap).tallest;
  const double one = reachOf(withExtenders(parts, 1), leastOverlap).tallest;
  const double two = reachOf(withExtenders(parts, 2), leastOverlap).tallest;
  if (none >= total) return 0;
  if (one >= total || two <= one) return 1;
  return 1 + static_cast<std::size_t>(std::ceil((total - one) / (two - one)));
}

}  // namespace

Extent Compositor::assembly(const VerticalShapes& shapes, char32_t character, double total, Style style) {
  const double wanted = total / em(1, style);
  const double leastOverlap = constants_.minConnectorOverlap;
  const auto sequence =
      withExtenders(shapes.assembly, extenderRepeats(shapes.assembly, wanted, leastOverlap));
  const Reach reach = reachOf(sequence, leastOverlap);
  const double surplus = std::clamp(reach.tallest - wanted, 0.0, reach.slack);
  const double share = reach.slack > 0 ? surplus / reach.slack : 0;

  const Mark start = mark();
  Extent box;
  double bottom = 0;
  for (std::size_t index = 0; index < sequence.size(); ++index) {
    const AssemblyPart& part = sequence[index];
    if (index > 0) {
      const Joint joint = jointOf(sequence[index - 1], part, leastOverlap);
      bottom -= joint.least + share * (joint.most - joint.least);
    }
    addGlyph(part.id, character, 0, em(bottom + part.depth, style), style);
    bottom += part.length;
    box.width = std::max(box.width, em(part.width, style));
  }
  join(start);
  box.height = em(bottom, style);
  return box;
}

Extent Compositor::delimiter(char32_t character, double total, Style style) {
  if (character == 0) return {.width = rootEm(invisibleDelimiterWidth)};
  const VerticalShapes& shapes = font_.verticalShapes(character);
  const double wanted = total / em(1, style);
  const auto variant = std::ranges::find_if(
      shapes.variants, [&](const GlyphMetrics& glyph) { return glyph.height + glyph.depth >= wanted; });
  if (variant == shapes.variants.end() && !shapes.assembly.empty()) {
    return assembly(shapes, character, total, style);
  }
  if (shapes.variants.empty()) return Symbol::of(character, true).set(*this, style);
  const GlyphMetrics& glyph = variant == shapes.variants.end() ? shapes.variants.back() : *variant;
  addGlyph(glyph.id, character, 0, 0, style);
  return {em(glyph.width, style), em(glyph.height, style), em(glyph.depth, style)};
}

}  // namespace tavi::typeset
