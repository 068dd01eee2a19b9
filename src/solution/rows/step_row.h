#pragma once

#include <QFont>
#include <QObject>
#include <QString>
#include <memory>

#include "output/string_output.h"
#include "solution/rows/row_painter.h"

namespace tavi {

/// The row of one step: a title over a message or a formula.
struct SolutionStepTableViewCell {
  Q_GADGET
  Q_PROPERTY(QString title MEMBER title)
  Q_PROPERTY(QFont titleFont MEMBER titleFont)
  Q_PROPERTY(QString message MEMBER message)
  Q_PROPERTY(QString latex MEMBER latex)
  Q_PROPERTY(bool isFirst MEMBER isFirst)
  Q_PROPERTY(bool isLast MEMBER isLast)
  Q_PROPERTY(bool isResult MEMBER isResult)

 public:
  static constexpr const char* kind = "step";

  /// A title that ends in "#bold" is shown without it and in the heavy font.
  void setStepTitle(const QString& stepTitle);

  /// Shows the step's message or, without one, its formula as it is to be read; what the row showed before is
  /// gone.
  void setStepContent(const SolutionStep& step);

  QString title;
  QFont titleFont;
  QString message;        ///< In place of a formula.
  QString latex;          ///< As it is to be read.
  bool isFirst = false;   ///< Begins the card of the steps.
  bool isLast = false;    ///< Ends it.
  bool isResult = false;  ///< Ends the working with its result.

  bool operator==(const SolutionStepTableViewCell&) const = default;
};

/// The row with its whole formula to be seen. It is at least `leastHeight` high.
std::unique_ptr<RowPainter> makePainter(const SolutionStepTableViewCell& row, double leastHeight,
                                        const RowTarget& target);

}  // namespace tavi
