#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <unordered_map>
#include <vector>

struct hb_font_t;

namespace tavi::typeset {

/// Which of a glyph's shapes is set: the plain one, or the sturdier ones drawn for scripts and scripts of
/// scripts.
enum class ScriptShape : std::uint8_t { plain, script, scriptscript };

/// A glyph's measures, in ems of the style in which it is set.
struct GlyphMetrics {
  std::uint32_t id = 0;  ///< 0: the font lacks the character
  double width = 0;
  double height = 0;  ///< of the outline above the baseline, never negative
  double depth = 0;   ///< of the outline below the baseline, never negative
  double italicCorrection = 0;
};

/// A piece of a delimiter of any height.
struct AssemblyPart {
  std::uint32_t id = 0;
  double width = 0;
  double length = 0;          ///< height + depth
  double depth = 0;           ///< below the glyph's origin; negative when the piece stands above it
  double startConnector = 0;  ///< how much of the bottom end may be overlapped
  double endConnector = 0;    ///< how much of the top end may be overlapped
  bool isExtender = false;
};

/// How a character grows upright.
struct VerticalShapes {
  std::vector<GlyphMetrics> variants;  ///< smallest first, the plain glyph included
  std::vector<AssemblyPart> assembly;  ///< bottom first; empty when the font has none
};

/// The values of the OpenType MATH table by their names there, in ems; percentages as factors.
struct MathConstants {
  double scriptPercentScaleDown;
  double scriptScriptPercentScaleDown;
  double axisHeight;
  double superscriptShiftUp;
  double superscriptShiftUpCramped;
  double superscriptBottomMin;
  double superscriptBaselineDropMax;
  double superscriptBottomMaxWithSubscript;
  double subscriptShiftDown;
  double subscriptTopMax;
  double subscriptBaselineDropMin;
  double subSuperscriptGapMin;
  double spaceAfterScript;
  double fractionNumeratorShiftUp;
  double fractionNumeratorDisplayStyleShiftUp;
  double fractionDenominatorShiftDown;
  double fractionDenominatorDisplayStyleShiftDown;
  double fractionNumeratorGapMin;
  double fractionNumDisplayStyleGapMin;
  double fractionDenominatorGapMin;
  double fractionDenomDisplayStyleGapMin;
  double fractionRuleThickness;
  double overbarVerticalGap;
  double overbarRuleThickness;
  double overbarExtraAscender;
  double radicalVerticalGap;
  double radicalDisplayStyleVerticalGap;
  double radicalRuleThickness;
  double radicalExtraAscender;
  double radicalKernBeforeDegree;
  double radicalKernAfterDegree;
  double radicalDegreeBottomRaisePercent;
  double minConnectorOverlap;
};

/// An OpenType font with a MATH table. What was looked up once is kept, so one thread at a time may use it.
class MathFont {
 public:
  /// `bytes` are the font file and must outlive the font. Nothing when they are no font with a MATH table.
  static std::optional<MathFont> open(std::span<const std::byte> bytes);

  [[nodiscard]] const MathConstants& constants() const { return constants_; }

  /// The glyph of a character; its id is 0 when the font lacks it.
  const GlyphMetrics& glyph(char32_t character, ScriptShape shape);

  /// The taller shapes of a character, as delimiters need them.
  const VerticalShapes& verticalShapes(char32_t character);

 private:
  using FontPointer = std::unique_ptr<hb_font_t, void (*)(hb_font_t*)>;

  explicit MathFont(FontPointer font);
  [[nodiscard]] GlyphMetrics measure(std::uint32_t id) const;
  [[nodiscard]] std::uint32_t shapeOf(std::uint32_t glyph, ScriptShape shape) const;
  [[nodiscard]] VerticalShapes lookUpVerticalShapes(std::uint32_t glyph) const;

  FontPointer font_;
  double unitsPerEm_;
  std::optional<unsigned> scriptShapeLookup_;
  MathConstants constants_;
  GlyphMetrics missing_;
  VerticalShapes noShapes_;
  // By character, the three shapes of each; only of those the font has, so that no text makes it grow without
  // bound.
  std::unordered_map<char32_t, std::array<GlyphMetrics, 3>> glyphs_;
  std::unordered_map<char32_t, VerticalShapes> verticalShapes_;
};

}  // namespace tavi::typeset
