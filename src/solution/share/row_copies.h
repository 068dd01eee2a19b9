#pragma once

#include <QMimeData>
#include <QQmlEngine>
#include <memory>

#include "solution/rows/solution_row.h"

namespace tavi {

/// What a row of a solution can be copied as.
namespace RowCopy {
Q_NAMESPACE
QML_ELEMENT
enum Form { Latex, MathMl, Words, Picture };
Q_ENUM_NS(Form)
}  // namespace RowCopy

/// The row as it is said: title and line of a step, a description of charts; empty for videos.
QString wordsOf(const SolutionRow& row);

/// The row for the clipboard: its line exactly as it is typeset, the same as MathML, title and line in words,
/// or a picture of the row. A row without a formula gives its words in place of LaTeX and MathML. `viewWidth`
/// is that of the page, in device-independent pixels. Main thread only.
std::unique_ptr<QMimeData> copyOfRow(const SolutionRow& row, RowCopy::Form form, double viewWidth);

}  // namespace tavi
