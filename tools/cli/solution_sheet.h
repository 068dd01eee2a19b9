#pragma once

#include <vector>

#include <QtCore/QSizeF>
#include <QtGui/QColor>
#include <QtGui/QPainterPath>

#include "output/string_output.h"
#include "typeset/math_painter.h"

class QPainter;

namespace tavi::cli {

/// The colours of a sheet.
struct SheetColors {
  QColor page;
  QColor card;
  QColor text;
  QColor hairline;
  QColor accent;
};

SheetColors lightSheet();
SheetColors darkSheet();

/// A whole working as one picture: a card with a row for each step, titles over formulas. Lengths are
/// device-independent pixels. Needs a QGuiApplication and must not outlive it.
class SolutionSheet {
 public:
  SolutionSheet(const SolutionSteps& steps, const SheetColors& colors);

  [[nodiscard]] QSizeF size() const { return size_; }
  void paint(QPainter& painter) const;

 private:
  struct Row {
    QPainterPath title;  // as an outline, so that no picture depends on the fonts of who looks at it
    typeset::MathPicture formula;
    double top = 0;
    double bottom = 0;
    double formulaBaseline = 0;
    bool hasHairline = false;
    bool isResult = false;
  };

  SheetColors colors_;
  std::vector<Row> rows_;
  QSizeF size_;
};

}  // namespace tavi::cli
