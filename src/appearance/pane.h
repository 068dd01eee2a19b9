#pragma once

#include <QQuickItem>

namespace tavi {

/// A part of the window as assistive technology sees it; in QML give it `Accessible.role` and, for a dialog,
/// `Accessible.name`.
///
/// What Qt cannot say of an item is said here: that a pane is modal, and that nothing of a covered one can be
/// reached. Beside that, buttons keep the role of their property `accessibleRole`, and say when they are off.
class Pane : public QQuickItem {
  Q_OBJECT
  QML_ANONYMOUS
  Q_PROPERTY(bool isModal MEMBER isModal_ NOTIFY changed)
  Q_PROPERTY(bool isCovered READ isCovered WRITE setCovered NOTIFY changed)

 public:
  using QQuickItem::QQuickItem;

  virtual bool isCovered() const { return isCovered_; }
  void setCovered(bool isCovered);

 signals:
  void changed();

 private:
  bool isModal_ = false;
  bool isCovered_ = false;
};

}  // namespace tavi
