#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <chrono>
#include <string>
#include <unordered_map>

#include "shell/calc_manager.h"

namespace tavi {

/// Finds tasks of the history by words that all stand in what was typed, or in how the task is spoken in the
/// user's language; signs of print and plain text, letters of either case and brackets or none are the same.
///
/// What can be found is worked out once for each record, piece by piece, and kept until `forget`.
class HistorySearch {
 public:
  explicit HistorySearch(const CalcManager& store) : store_(store) {}

  /// Begins anew with the words of a query; with none of them nothing is found.
  void begin(const QString& query);

  bool isOn() const { return !words_.isEmpty(); }
  bool isThrough() const { return next_ == store_.calculations().size(); }

  /// Goes through further records for about so long.
  void goOn(std::chrono::milliseconds time);

  /// The indexes in the history of what is found so far, rising.
  const QList<qsizetype>& found() const { return found_; }

  /// To be told when the record at the index is gone, and when the history has changed in any other way.
  void remove(qsizetype index);
  void forget();

 private:
  QString wordsOf(const Calculation& calculation);

  const CalcManager& store_;
  QStringList words_;
  qsizetype next_ = 0;  ///< The first record that was not looked at.
  QStringList texts_;   ///< Of the records as far as they are worked out.
  QList<qsizetype> found_;
  std::unordered_map<std::string_view, std::string> phrases_;  ///< By their keys.
};

}  // namespace tavi
