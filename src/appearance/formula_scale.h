#pragma once

#include <QObject>

#include "platform/preference_store.h"

namespace tavi {

/// The size of the formulas of a working in per cent of the usual one: what was chosen, else the desktop's
/// scale of texts. Pictures of a working have them in the usual size.
class FormulaScale : public QObject {
  Q_OBJECT

 public:
  static constexpr int least = 70;
  static constexpr int most = 250;
  static constexpr int usual = 100;

  static FormulaScale& shared();

  int percent() const;

  /// Takes what was chosen in an earlier run.
  void load(const PreferenceStore& preferences);

  /// Keeps a choice, the nearest one there is. 0 gives the choice back to the desktop.
  void choose(PreferenceStore& preferences, int percent);

  /// Asks the desktop, without waiting for it. Where it scales whole windows instead there is nothing to ask.
  void followSystem();

  /// For tests, and for who knows better than the desktop.
  void setSystemPercent(int percent);

 signals:
  void changed();

 private:
  void set(int& field, int percent);

  int chosen_ = 0;
  int system_ = usual;
};

}  // namespace tavi
