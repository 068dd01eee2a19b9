#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QQuickItem>
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

  Q_INVOKABLE void setDark(bool isDark) const;

  /// The greatest difference of any channel of any pixel between a row of charts at the upper left corner of
  /// its window and the same row in a shared picture.
  Q_INVOKABLE int differenceFromPicture(QQuickItem* view) const;

 public slots:
  void applicationAvailable();
  void qmlEngineAvailable(QQmlEngine* engine);
};

}  // namespace tavi
