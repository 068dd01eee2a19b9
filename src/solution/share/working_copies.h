#pragma once

#include <QByteArray>
#include <QString>
#include <vector>

#include "solution/rows/solution_row.h"

namespace tavi {

/// A whole working as a document of A4 pages that break between the rows, in black on white; a line wider
/// than the page goes on in a further line. Fonts are part of the document. Main thread only.
QByteArray pdfOfWorking(const std::vector<SolutionRow>& rows);

/// A whole working as one drawing that depends on no font, in the appearance in force. Main thread only.
QByteArray svgOfWorking(const std::vector<SolutionRow>& rows, double viewWidth);

/// A whole working as LaTeX: an aligned display with the titles as text, which compiles with amsmath and
/// xcolor.
QString latexOfWorking(const std::vector<SolutionRow>& rows);

}  // namespace tavi
