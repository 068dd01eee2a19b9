#pragma once

#include <QQuickItem>

#include "typeset/math_label.h"

namespace tavi {

/// One row of the history: a task as a formula.
class HistoryTableViewCell : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(tavi::typeset::MathLabel* mathLabel MEMBER mathLabel WRITE setMathLabel)

 public:
  explicit HistoryTableViewCell(QQuickItem* parent = nullptr);

  typeset::MathLabel* mathLabel = nullptr;  ///< The page puts it in.

  /// Takes the label and gives it the colour of text, slightly softened.
  void setMathLabel(typeset::MathLabel* label);

 private:
  void prepare();
};

}  // namespace tavi
