#pragma once

#include <QFont>
#include <QQuickItem>
#include <QString>

#include "output/string_output.h"

namespace tavi {

/// One row of the solution table: a title over a message or a formula, of which QML draws what is set here.
class SolutionStepTableViewCell : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QString stepTitle READ stepTitle NOTIFY contentChanged)
  Q_PROPERTY(QFont titleFont READ titleFont NOTIFY contentChanged)
  Q_PROPERTY(QString message READ message NOTIFY contentChanged)
  Q_PROPERTY(QString latex READ latex NOTIFY contentChanged)
  /// Whether the row ends the working with its result.
  Q_PROPERTY(bool isResult READ isResult NOTIFY contentChanged)

 public:
  using QQuickItem::QQuickItem;

  /// A title that ends in "#bold" is shown without it and in the heavy font.
  void setStepTitle(const QString& title);

  /// Shows the step's message or, without one, its formula as it is to be read; what the cell showed before
  /// is gone.
  void setStepContent(const SolutionStep& step);

  QString stepTitle() const { return title_; }
  QFont titleFont() const { return titleFont_; }
  QString message() const { return message_; }
  QString latex() const { return latex_; }
  bool isResult() const;

 signals:
  void contentChanged();

 private:
  QString title_;
  QFont titleFont_;
  QString message_;
  QString latex_;
};

}  // namespace tavi
