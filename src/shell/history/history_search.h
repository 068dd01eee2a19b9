#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>
#include <chrono>
#include <string>

#include "shell/calc_manager.h"

namespace tavi {

/// Tasks as they are spoken in the user's language, folded for a search. Those that differ in nothing but
/// their longer numbers share what was worked out for the first of them.
class SpokenTasks {
 public:
  /// Appends how the line is spoken.
  void append(const QString& latex, std::u16string& text);

 private:
  /// Words, with a number of the line behind them or, at the end, none.
  struct Piece {
    QString words;
    qsizetype number;
  };

  static QList<Piece> piecesOf(const QString& line, qsizetype numbers);

  QHash<QString, QList<Piece>> known_;  ///< By the line with placeholders; empty for one that is not shared.
  QString line_;
};

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
  void append(const Calculation& calculation);
  qsizetype startOf(qsizetype index) const { return index == 0 ? 0 : ends_[index - 1]; }

  const CalcManager& store_;
  QStringList words_;
  qsizetype next_ = 0;     ///< The first record that was not looked at.
  std::u16string text_;    ///< Of the records as far as they are worked out, one behind the other.
  QList<qsizetype> ends_;  ///< Of each of them in it.
  QList<qsizetype> found_;
  SpokenTasks spoken_;
};

}  // namespace tavi
