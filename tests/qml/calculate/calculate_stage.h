#pragma once

#include <QGuiApplication>
#include <QObject>
#include <QQmlEngine>
#include <QQuickItem>
#include <QStringList>
#include <QStyleHints>
#include <QTemporaryDir>
#include <memory>

#include "platform/resource_bundle.h"
#include "shell/calculate_view_controller.h"

namespace tavi {

/// Sets a calculate page up for tests that tap on it, as the context property "stage".
class CalculateStage : public QObject {
  Q_OBJECT
  Q_PROPERTY(QStringList toasts READ toasts NOTIFY toastsChanged)
  Q_PROPERTY(int records READ records NOTIFY toastsChanged)

 public:
  /// A fresh page that fills the holder.
  Q_INVOKABLE QQuickItem* open(QQuickItem* holder);
  Q_INVOKABLE void close() { controller_.reset(); }

  /// A drawing of the application's as the text that it is.
  Q_INVOKABLE QString drawing(const QString& name) {
    return QString::fromUtf8(ResourceBundle::main().picture(name).value_or(QByteArray()));
  }

  /// How long a caret takes to go and come back, in milliseconds.
  Q_INVOKABLE void setCaretFlashTime(int time) { QGuiApplication::styleHints()->setCursorFlashTime(time); }

  QStringList toasts() const { return toasts_; }
  int records() const { return static_cast<int>(store_.calculations().size()); }

 public slots:
  void applicationAvailable();
  void qmlEngineAvailable(QQmlEngine* engine);

 signals:
  void toastsChanged();

 private:
  QTemporaryDir folder_;
  PreferenceStore preferences_{folder_.filePath("preferences.sqlite")};
  CalcManager store_{preferences_};
  NotificationCenter notifications_;
  QStringList toasts_;
  ErrorManager errorManager_{{[this](const QString& text) { toasts_.append(text); }, {}}};
  TaviStringOutput output_;
  TaviMathOperation operation_{output_};
  QQmlEngine* engine_ = nullptr;
  std::unique_ptr<CalculateViewController> controller_;
};

}  // namespace tavi
