#pragma once

#include <QString>

#include "shell/calculation.h"

namespace tavi {

/// A task in one line of plain text, its numbers as they are typed: "(3/2)^(-2)", "³√(27/8)", "√2". Empty for
/// a record without fields.
QString typedText(const Calculation& calculation);

}  // namespace tavi
