#pragma once

#include <QFont>
#include <QString>
#include <vector>

#include "typeset/line_breaks.h"
#include "typeset/math_painter.h"

class QPainter;

namespace tavi {

/// What a row of the solution table shows.
struct StepRow {
  QString title;
  QFont titleFont;
  QString message;  ///< In place of a formula.
  QString latex;    ///< As it is to be read.
  bool isFirst = false;
  bool isLast = false;
  bool isResult = false;
  double formulaSize = 20;  ///< The em.
};

/// A row of the solution table as it looks with its whole formula to be seen, on any painter. Lengths are
/// device-independent pixels. Main thread only.
class StepRowPicture {
 public:
  explicit StepRowPicture(StepRow row);

  /// Needed for the formula, which goes on in a further line beyond some thousands.
  double width() const;

  /// At that width; at least `rowHeight`.
  double height(double width, double rowHeight) const;

  /// Draws the row into that size, in the colours of the appearance in force.
  void paint(QPainter& painter, QSizeF size) const;

 private:
  double titleHeight(double width) const;
  double headHeight(double width) const;
  double messageHeight(double width) const;
  double formulaHeight() const;
  void paintCard(QPainter& painter, QSizeF size) const;
  void paintFormula(QPainter& painter, double top, double bottom) const;

  StepRow row_;
  typeset::MathPicture formula_;
  std::vector<typeset::LinePart> lines_;
  double ascent_ = 0;      // of the formula
  double lineHeight_ = 0;  // of the formula, 0 without one
};

}  // namespace tavi
