#pragma once

#include <string>

#include "charts/chart_manager.h"
#include "typeset/spoken_math.h"

namespace tavi {

/// What a chart shows, in words for assistive technology: its title and kind, the ranges of its axes, and a
/// sentence for each series.
std::string chartWords(const ChartView& view, const typeset::PhraseLookup& phrase = typeset::englishPhrase);

}  // namespace tavi
