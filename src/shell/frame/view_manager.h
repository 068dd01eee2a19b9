#pragma once

#include <QAbstractListModel>
#include <QFont>
#include <QObject>
#include <QQmlEngine>
#include <QQuickItem>
#include <QString>
#include <QStringList>

namespace tavi {

/// Small services over the whole window: short messages, the wait indicator, pictures in segments.
class ViewManager : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON
  Q_PROPERTY(bool isSpinnerVisible READ isSpinnerVisible NOTIFY spinnerChanged)
  Q_PROPERTY(QFont toastFont READ toastFont CONSTANT)

 public:
  static ViewManager& shared();
  static ViewManager* create(QQmlEngine*, QJSEngine*);

  /// Shows the text near the foot of the window for three seconds and lets it fade over two. Texts that come
  /// meanwhile stand on top of each other.
  static void showToast(const QString& text);

  /// Darkens the window under a turning wheel until it is hidden again. From any thread.
  static void showSpinner();
  static void hideSpinner();

  /// Lets the pictures in all segmented controls below the item keep their proportions.
  static void prepareSegmentedControls(const QQuickItem& item);

  bool isSpinnerVisible() const { return isSpinnerVisible_; }
  QFont toastFont() const;

 signals:
  void toastRequested(const QString& text);
  void spinnerChanged();

 private:
  ViewManager() = default;
  void setSpinnerVisible(bool isVisible);

  bool isSpinnerVisible_ = false;
};

}  // namespace tavi
