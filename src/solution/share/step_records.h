#pragma once

#include <QVariantList>

#include "output/string_output.h"

namespace tavi {

/// A solution as a list of maps from text to text, with the keys "title", "latexString" and "messageString"
/// where a step has them.
QVariantList stepRecords(const SolutionSteps& steps);

}  // namespace tavi
