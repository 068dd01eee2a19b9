#pragma once

#include <QList>
#include <QString>
#include <functional>
#include <optional>

#include "platform/preference_store.h"
#include "shell/calculation.h"

namespace tavi {

/// A store with a preference store and a key that can save and load itself.
class Persistable {
 public:
  virtual ~Persistable() = default;

  virtual PreferenceStore& userDefaults() const = 0;
  virtual QString persistKey() const = 0;
  virtual void loadCalculations() = 0;
  virtual void saveCalculations() = 0;
};

/// A record by its place in the store, so that what was taken out can be put back where it stood.
struct StoredCalculation {
  qlonglong number;  ///< Falls from each record to the next.
  Calculation calculation;
};
using StoredCalculations = QList<StoredCalculation>;

/// What the user has calculated: the history, newest first, the snapshot of the fields and the record picked
/// for reopening. Each change is written at once; what cannot be written is kept until the process ends. Of
/// two processes over one store neither touches the other's records. Main thread only.
class CalcManager final : public Persistable {
 public:
  static CalcManager& shared();

  /// Posted by whoever has put something back into the history, or behind it.
  static constexpr QLatin1StringView didRestoreCalculations{"didRestoreCalculations"};

  /// The history is read when it is first asked for; a list of another shape than ours is then set aside and
  /// replaced by an empty one.
  explicit CalcManager(PreferenceStore& userDefaults);

  /// Reads a piece of the history, a few milliseconds long, ahead of being asked for it; whether there is
  /// more to come.
  bool readAhead();

  PreferenceStore& userDefaults() const override { return userDefaults_; }

  /// A name of the store; the list itself lies under "Calculations".
  QString persistKey() const override;

  const QList<Calculation>& calculations() const { return list().calculations; }

  /// The record at the index; one outside the list is a fatal stop, here and below.
  const Calculation& calculation(qsizetype index) const;

  /// Puts the record in front of the others.
  void addCalculation(const Calculation& calculation);

  StoredCalculations removeCalculation(qsizetype index);

  /// Exchanges two records, and nothing between them. Saves after each half.
  void swapCalculations(qsizetype first, qsizetype second);

  /// Empties the history; snapshot and picked record stay.
  StoredCalculations clearCalculations();

  /// Puts records back where they stood, newer ones before them; the index of the first of them.
  qsizetype restoreCalculations(const StoredCalculations& removed);

  /// Puts records behind the others, and tells where: all of them but those that are in the history already,
  /// each as often as it stands there.
  StoredCalculations appendCalculations(const QList<Calculation>& calculations);

  /// Undoes that, except for those whose place another record has taken meanwhile.
  void withdrawCalculations(const StoredCalculations& appended);

  /// Snapshot of the fields, for the length of one run: it is not written.
  const std::optional<Calculation>& currentCalculation() const { return currentCalculation_; }
  void setCurrentCalculation(std::optional<Calculation> calculation);

  /// The record picked in the history, kept over a restart until it is set to absent.
  const std::optional<Calculation>& currentSelectedCalculation() const { return currentSelectedCalculation_; }
  void setCurrentSelectedCalculation(std::optional<Calculation> calculation);

  /// On the very first start: notes the date and leaves a history of the one sample task. Later: nothing.
  void runFirstStartStep();

  void loadCalculations() override;
  void saveCalculations() override;

 private:
  struct List {
    QList<Calculation> calculations;
    QList<qlonglong> numbers;         ///< Of the same records in the store, falling.
    qsizetype added = 0;              ///< The first of them, which were added while the others were read.
    std::optional<qlonglong> unread;  ///< Where the store holds more, below this number.
    bool isOurs = true;               ///< Whether what the store holds is a list of records.
  };

  List& begun();
  void read(qsizetype most);
  List& list();
  const List& list() const { return const_cast<CalcManager*>(this)->list(); }
  std::optional<Calculation> stored(const Preference<QVariantMap>& preference) const;
  void persistSelection();
  void requireIndex(qsizetype index) const;
  void replace(qsizetype index, const Calculation& calculation);
  void save(const std::function<bool()>& change);

  PreferenceStore& userDefaults_;
  std::optional<List> list_;  ///< Read when it is first asked for.
  bool isBehind_ = false;     ///< Whether the store has refused a change.
  std::optional<Calculation> currentCalculation_;
  std::optional<Calculation> currentSelectedCalculation_;
};

}  // namespace tavi
