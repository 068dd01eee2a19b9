#pragma once

#include <QString>

#include "shell/calculation.h"

namespace tavi {

/// Whether it is one of the ten digits that the keypad has.
bool isDigit(QChar each);

/// A task in one line of plain text, its numbers as they are typed: "(3/2)^(-2)", "³√(27/8)", "√2". Empty for
/// a record without fields.
QString typedText(const Calculation& calculation);

}  // namespace tavi
