#pragma once

#include <QFont>
#include <QObject>
#include <QPointer>
#include <QQmlEngine>
#include <QQuickItem>
#include <QString>
#include <functional>

namespace tavi {

/// What a toast offers to do; without a title it offers nothing.
struct ToastAction {
  QString title;
  std::function<void()> handler = {};
};

/// Small services over the whole window: short messages, the wait indicator, pictures in segments.
class ViewManager : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON
  Q_PROPERTY(bool isSpinnerVisible READ isSpinnerVisible NOTIFY spinnerChanged)
  Q_PROPERTY(QString toastText READ toastText NOTIFY toastChanged)
  Q_PROPERTY(QString toastActionTitle READ toastActionTitle NOTIFY toastChanged)
  Q_PROPERTY(QFont toastFont READ toastFont CONSTANT)

 public:
  static ViewManager& shared();
  static ViewManager* create(QQmlEngine*, QJSEngine*);

  /// Shows the text near the foot of the window, in the place of the last one: for three seconds, six with an
  /// action, and lets it fade over two.
  static void showToast(const QString& text, ToastAction action = {});

  /// Takes the toast away at once, if there is one.
  Q_INVOKABLE static void hideToast() { showToast({}); }

  /// The tap on the toast's action, which ends the toast.
  Q_INVOKABLE static void chooseToastAction();

  /// Lets assistive technology tell of an item that came by itself.
  Q_INVOKABLE static void announce(QQuickItem* item);

  /// Darkens the window under a turning wheel until it is hidden again. From any thread.
  static void showSpinner();
  static void hideSpinner();

  /// Gives the focus back to what had it before anything came over the pages, unless something that still
  /// stands over them has it. For what has just gone. Where the page that had it has gone, too, and nothing
  /// has it, `otherwise` gets it.
  Q_INVOKABLE static void restoreFocus(QQuickItem* otherwise = nullptr);

  /// Lets the pictures in all segmented controls below the item keep their proportions.
  static void prepareSegmentedControls(const QQuickItem& item);

  bool isSpinnerVisible() const { return isSpinnerVisible_; }
  QString toastText() const { return toastText_; }
  QString toastActionTitle() const { return toastAction_.title; }
  static QFont toastFont();

 signals:
  void toastChanged();
  void spinnerChanged();

 private:
  ViewManager();
  void setSpinnerVisible(bool isVisible);

  bool isSpinnerVisible_ = false;
  QString toastText_;  ///< Empty for no toast.
  ToastAction toastAction_;
  QPointer<QQuickItem> pageFocus_;  ///< What had the focus last that stands in no popup.
};

}  // namespace tavi
