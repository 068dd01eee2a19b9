#pragma once

#include <QQuickItem>

namespace tavi {

/// A part of the window as assistive technology sees it; in QML give it `Accessible.role` and, for a dialog,
/// `Accessible.name`.
///
/// What Qt does not tell of an item is told here: that nothing of a covered pane can be reached, that a popup
/// is modal, that a button is off. Buttons and popups have the role of their property `accessibleRole`, where
/// they have one, and buttons the state of `isCheckable` and `isChecked`: the templates write over what is
/// attached.
class Pane : public QQuickItem {
  Q_OBJECT
  QML_ANONYMOUS
  Q_PROPERTY(bool isCovered READ isCovered WRITE setCovered NOTIFY changed)

 public:
  using QQuickItem::QQuickItem;

  virtual bool isCovered() const { return isCovered_; }
  void setCovered(bool isCovered);

 signals:
  void changed();

 private:
  bool isCovered_ = false;
};

}  // namespace tavi
