#pragma once

#include <QFont>
#include <QString>
#include <optional>

#include "output/string_output.h"
#include "solution/step_row_picture.h"
#include "solution/table_view_cell.h"

namespace tavi {

/// One row of the solution table: a title over a message or a formula, of which QML draws what is set here.
class SolutionStepTableViewCell : public TableViewCell {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QString stepTitle READ stepTitle NOTIFY contentChanged)
  Q_PROPERTY(QFont titleFont READ titleFont NOTIFY contentChanged)
  Q_PROPERTY(QString message READ message NOTIFY contentChanged)
  Q_PROPERTY(QString latex READ latex NOTIFY contentChanged)
  Q_PROPERTY(bool isFirst READ isFirst NOTIFY contentChanged)
  Q_PROPERTY(bool isLast READ isLast NOTIFY contentChanged)
  /// Whether the row ends the working with its result.
  Q_PROPERTY(bool isResult READ isResult NOTIFY contentChanged)
  /// The em of the formula.
  Q_PROPERTY(double formulaSize READ formulaSize WRITE setFormulaSize NOTIFY contentChanged)

 public:
  using TableViewCell::TableViewCell;

  /// Whether the row begins and whether it ends the card of the steps.
  void setPlace(bool isFirst, bool isLast);

  /// A title that ends in "#bold" is shown without it and in the heavy font.
  void setStepTitle(const QString& title);

  /// Shows the step's message or, without one, its formula as it is to be read; what the cell showed before
  /// is gone.
  void setStepContent(const SolutionStep& step);

  /// The em that suits a page of that width.
  Q_INVOKABLE static double formulaSizeFor(double viewWidth);
  void setFormulaSize(double size);

  QString stepTitle() const { return row_.title; }
  QFont titleFont() const { return row_.titleFont; }
  QString message() const { return row_.message; }
  QString latex() const { return row_.latex; }
  bool isFirst() const { return row_.isFirst; }
  bool isLast() const { return row_.isLast; }
  bool isResult() const { return row_.isResult; }
  double formulaSize() const { return row_.formulaSize; }

  // The picture shows the formula whole, whatever of it can be seen on the screen.
  double widthForPicture() override { return picture().width(); }
  double heightForPicture(double width, double rowHeight) override {
    return picture().height(width, rowHeight);
  }
  QCoro::Task<QImage> screenshot(double scale) override;

 signals:
  void contentChanged();

 private:
  void change();
  StepRowPicture& picture();

  StepRow row_;
  std::optional<StepRowPicture> picture_;
};

}  // namespace tavi
