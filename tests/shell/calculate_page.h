#pragma once

#include <QQmlEngine>
#include <QQuickWindow>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include "platform/preference_store.h"
#include "shell/calculate_view_controller.h"

namespace tavi {

/// A calculate page in a window of its own, over a store and helpers that belong to the test.
class CalculatePage {
 public:
  CalculatePage();

  /// The page of a program that starts again, or of a navigation that rebuilds it.
  void rebuild();

  DTTextField& field(const QString& name);

  /// Taps the field and puts the caret, or the selection, there.
  DTTextField& edit(const QString& name, qsizetype start, qsizetype end);

  /// Taps the field and types keys of the keypad into it.
  void type(const QString& name, QStringView keys);

  QTemporaryDir folder;
  PreferenceStore preferences{folder.filePath("preferences.sqlite")};
  CalcManager store{preferences};
  NotificationCenter notifications;
  QStringList toasts;
  ErrorManager errorManager{{[this](const QString& text) { toasts.append(text); }, {}}};
  TaviStringOutput output;
  TaviMathOperation operation{output};
  QQmlEngine engine;
  QQuickWindow window;
  std::unique_ptr<CalculateViewController> controller;
};

}  // namespace tavi
