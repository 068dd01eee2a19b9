#include "typeset/math_font.h"

#include <algorithm>
#include <limits>
#include <utility>

#include <hb-ot.h>
#include <hb.h>

namespace tavi::typeset {
namespace {

template <typename T>
using Pointer = std::unique_ptr<T, void (*)(T*)>;

MathConstants readConstants(hb_font_t* font, double unitsPerEm) {
  const auto value = [&](hb_ot_math_constant_t constant) {
    return hb_ot_math_get_constant(font, constant) / unitsPerEm;
  };
  const auto percent = [&](hb_ot_math_constant_t constant) {
    return hb_ot_math_get_constant(font, constant) / 100.0;
  };
  return {
      .scriptPercentScaleDown = percent(HB_OT_MATH_CONSTANT_SCRIPT_PERCENT_SCALE_DOWN),
      .scriptScriptPercentScaleDown = percent(HB_OT_MATH_CONSTANT_SCRIPT_SCRIPT_PERCENT_SCALE_DOWN),
      .axisHeight = value(HB_OT_MATH_CONSTANT_AXIS_HEIGHT),
      .superscriptShiftUp = value(HB_OT_MATH_CONSTANT_SUPERSCRIPT_SHIFT_UP),
      .superscriptShiftUpCramped = value(HB_OT_MATH_CONSTANT_SUPERSCRIPT_SHIFT_UP_CRAMPED),
      .superscriptBottomMin = value(HB_OT_MATH_CONSTANT_SUPERSCRIPT_BOTTOM_MIN),
      .superscriptBaselineDropMax = value(HB_OT_MATH_CONSTANT_SUPERSCRIPT_BASELINE_DROP_MAX),
      .superscriptBottomMaxWithSubscript = value(HB_OT_MATH_CONSTANT_SUPERSCRIPT_BOTTOM_MAX_WITH_SUBSCRIPT),
      .subscriptShiftDown = value(HB_OT_MATH_CONSTANT_SUBSCRIPT_SHIFT_DOWN),
      .subscriptTopMax = value(HB_OT_MATH_CONSTANT_SUBSCRIPT_TOP_MAX),
      .subscriptBaselineDropMin = value(HB_OT_MATH_CONSTANT_SUBSCRIPT_BASELINE_DROP_MIN),
      .subSuperscriptGapMin = value(HB_OT_MATH_CONSTANT_SUB_SUPERSCRIPT_GAP_MIN),
      .spaceAfterScript = value(HB_OT_MATH_CONSTANT_SPACE_AFTER_SCRIPT),
      .fractionNumeratorShiftUp = value(HB_OT_MATH_CONSTANT_FRACTION_NUMERATOR_SHIFT_UP),
      .fractionNumeratorDisplayStyleShiftUp =
          value(HB_OT_MATH_CONSTANT_FRACTION_NUMERATOR_DISPLAY_STYLE_SHIFT_UP),
      .fractionDenominatorShiftDown = value(HB_OT_MATH_CONSTANT_FRACTION_DENOMINATOR_SHIFT_DOWN),
      .fractionDenominatorDisplayStyleShiftDown =
          value(HB_OT_MATH_CONSTANT_FRACTION_DENOMINATOR_DISPLAY_STYLE_SHIFT_DOWN),
      .fractionNumeratorGapMin = value(HB_OT_MATH_CONSTANT_FRACTION_NUMERATOR_GAP_MIN),
      .fractionNumDisplayStyleGapMin = value(HB_OT_MATH_CONSTANT_FRACTION_NUM_DISPLAY_STYLE_GAP_MIN),
      .fractionDenominatorGapMin = value(HB_OT_MATH_CONSTANT_FRACTION_DENOMINATOR_GAP_MIN),
      .fractionDenomDisplayStyleGapMin = value(HB_OT_MATH_CONSTANT_FRACTION_DENOM_DISPLAY_STYLE_GAP_MIN),
      .fractionRuleThickness = value(HB_OT_MATH_CONSTANT_FRACTION_RULE_THICKNESS),
      .overbarVerticalGap = value(HB_OT_MATH_CONSTANT_OVERBAR_VERTICAL_GAP),
      .overbarRuleThickness = value(HB_OT_MATH_CONSTANT_OVERBAR_RULE_THICKNESS),
      .overbarExtraAscender = value(HB_OT_MATH_CONSTANT_OVERBAR_EXTRA_ASCENDER),
      .radicalVerticalGap = value(HB_OT_MATH_CONSTANT_RADICAL_VERTICAL_GAP),
      .radicalDisplayStyleVerticalGap = value(HB_OT_MATH_CONSTANT_RADICAL_DISPLAY_STYLE_VERTICAL_GAP),
      .radicalRuleThickness = value(HB_OT_MATH_CONSTANT_RADICAL_RULE_THICKNESS),
      .radicalExtraAscender = value(HB_OT_MATH_CONSTANT_RADICAL_EXTRA_ASCENDER),
      .radicalKernBeforeDegree = value(HB_OT_MATH_CONSTANT_RADICAL_KERN_BEFORE_DEGREE),
      .radicalKernAfterDegree = value(HB_OT_MATH_CONSTANT_RADICAL_KERN_AFTER_DEGREE),
      .radicalDegreeBottomRaisePercent = percent(HB_OT_MATH_CONSTANT_RADICAL_DEGREE_BOTTOM_RAISE_PERCENT),
      .minConnectorOverlap = hb_ot_math_get_min_connector_overlap(font, HB_DIRECTION_BTT) / unitsPerEm,
  };
}

// The lookup of the feature `ssty`, which holds the shapes for scripts.
std::optional<unsigned> findScriptShapeLookup(hb_face_t* face) {
  constexpr std::array<hb_tag_t, 2> features{HB_TAG('s', 's', 't', 'y'), HB_TAG_NONE};
  const Pointer<hb_set_t> lookups(hb_set_create(), hb_set_destroy);
  hb_ot_layout_collect_lookups(face, HB_OT_TAG_GSUB, nullptr, nullptr, features.data(), lookups.get());
  const hb_codepoint_t lookup = hb_set_get_min(lookups.get());
  if (lookup == HB_SET_VALUE_INVALID) return std::nullopt;
  return lookup;
}

}  // namespace

std::optional<MathFont> MathFont::open(std::span<const std::byte> bytes) {
  if (bytes.size() > std::numeric_limits<unsigned>::max()) return std::nullopt;
  const Pointer<hb_blob_t> blob(
      hb_blob_create(reinterpret_cast<const char*>(bytes.data()), static_cast<unsigned>(bytes.size()),
                     HB_MEMORY_MODE_READONLY, nullptr, nullptr),
      hb_blob_destroy);
  const Pointer<hb_face_t> face(hb_face_create(blob.get(), 0), hb_face_destroy);
  if (hb_ot_math_has_data(face.get()) == 0) return std::nullopt;
  return MathFont(FontPointer(hb_font_create(face.get()), hb_font_destroy));
}

MathFont::MathFont(FontPointer font)
    : font_(std::move(font)),
      unitsPerEm_(hb_face_get_upem(hb_font_get_face(font_.get()))),
      scriptShapeLookup_(findScriptShapeLookup(hb_font_get_face(font_.get()))),
      constants_(readConstants(font_.get(), unitsPerEm_)) {}

GlyphMetrics MathFont::measure(std::uint32_t id) const {
  hb_glyph_extents_t extents{};
  hb_font_get_glyph_extents(font_.get(), id, &extents);
  return {
      .id = id,
      .width = hb_font_get_glyph_h_advance(font_.get(), id) / unitsPerEm_,
      .height = std::max(0, extents.y_bearing) / unitsPerEm_,
      .depth = std::max(0, -(extents.y_bearing + extents.height)) / unitsPerEm_,
      .italicCorrection = hb_ot_math_get_glyph_italics_correction(font_.get(), id) / unitsPerEm_,
  };
}

std::uint32_t MathFont::shapeOf(std::uint32_t glyph, ScriptShape shape) const {
  if (!scriptShapeLookup_) return glyph;
  const unsigned alternate = shape == ScriptShape::script ? 0 : 1;
  unsigned count = 1;
  hb_codepoint_t scriptGlyph = 0;
  hb_ot_layout_lookup_get_glyph_alternates(hb_font_get_face(font_.get()), *scriptShapeLookup_, glyph,
                                           alternate, &count, &scriptGlyph);
  return count == 1 ? scriptGlyph : glyph;
}

const GlyphMetrics& MathFont::glyph(char32_t character, ScriptShape shape) {
  auto entry = glyphs_.find(character);
  if (entry == glyphs_.end()) {
    hb_codepoint_t glyph = 0;
    if (hb_font_get_nominal_glyph(font_.get(), character, &glyph) == 0) return missing_;
    entry = glyphs_
                .emplace(character, std::array{measure(glyph), measure(shapeOf(glyph, ScriptShape::script)),
                                               measure(shapeOf(glyph, ScriptShape::scriptscript))})
                .first;
  }
  return entry->second[static_cast<std::size_t>(shape)];
}

const VerticalShapes& MathFont::verticalShapes(char32_t character) {
  auto entry = verticalShapes_.find(character);
  if (entry == verticalShapes_.end()) {
    hb_codepoint_t glyph = 0;
    if (hb_font_get_nominal_glyph(font_.get(), character, &glyph) == 0) return noShapes_;
    entry = verticalShapes_.emplace(character, lookUpVerticalShapes(glyph)).first;
  }
  return entry->second;
}

VerticalShapes MathFont::lookUpVerticalShapes(std::uint32_t glyph) const {
  VerticalShapes shapes;
  unsigned count = hb_ot_math_get_glyph_variants(font_.get(), glyph, HB_DIRECTION_BTT, 0, nullptr, nullptr);
  std::vector<hb_ot_math_glyph_variant_t> variants(count);
  hb_ot_math_get_glyph_variants(font_.get(), glyph, HB_DIRECTION_BTT, 0, &count, variants.data());
  for (const auto& variant : variants) shapes.variants.push_back(measure(variant.glyph));
  if (shapes.variants.empty()) shapes.variants.push_back(measure(glyph));

  hb_position_t italicsCorrection = 0;
  count = hb_ot_math_get_glyph_assembly(font_.get(), glyph, HB_DIRECTION_BTT, 0, nullptr, nullptr,
                                        &italicsCorrection);
  std::vector<hb_ot_math_glyph_part_t> parts(count);
  hb_ot_math_get_glyph_assembly(font_.get(), glyph, HB_DIRECTION_BTT, 0, &count, parts.data(),
                                &italicsCorrection);
  for (const auto& part : parts) {
    hb_glyph_extents_t extents{};
    hb_font_get_glyph_extents(font_.get(), part.glyph, &extents);
    shapes.assembly.push_back({
        .id = part.glyph,
        .width = hb_font_get_glyph_h_advance(font_.get(), part.glyph) / unitsPerEm_,
        .length = -extents.height / unitsPerEm_,
        .depth = -(extents.y_bearing + extents.height) / unitsPerEm_,
        .startConnector = part.start_connector_length / unitsPerEm_,
        .endConnector = part.end_connector_length / unitsPerEm_,
        .isExtender = (part.flags & HB_OT_MATH_GLYPH_PART_FLAG_EXTENDER) != 0,
    });
  }
  return shapes;
}

}  // namespace tavi::typeset
