#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QString>

#include "charts/chart_data.h"

namespace tavi {

/// Gives rows of charts to tests that look at them, as the context property "stage".
class ChartsStage : public QObject {
  Q_OBJECT

 public:
  /// The row of an example.
  Q_INVOKABLE tavi::ChartRow example(const QString& name) const;

  /// A tree of that many trials.
  Q_INVOKABLE tavi::ChartRow tree(int trials) const;

 public slots:
  void applicationAvailable();
  void qmlEngineAvailable(QQmlEngine* engine);
};

}  // namespace tavi
