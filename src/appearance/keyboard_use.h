#pragma once

#include <QObject>
#include <QQmlEngine>

namespace tavi {

/// Whether the user goes by key at the moment: what has the focus is shown to nobody else.
class KeyboardUse : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON
  Q_PROPERTY(bool isCurrent READ isCurrent NOTIFY changed)

 public:
  explicit KeyboardUse(QObject* parent = nullptr);

  bool isCurrent() const { return isCurrent_; }

 signals:
  void changed();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool isCurrent_ = false;
};

}  // namespace tavi
