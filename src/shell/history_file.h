#pragma once

#include <QByteArray>
#include <QList>
#include <variant>

#include "shell/calculation.h"

namespace tavi {

/// Why a file gives no history.
enum class HistoryFileFault {
  unreadable,
  tooLarge,   ///< More bytes or more records than a history of ours has.
  noHistory,  ///< Another kind of file, or one that is damaged at any place.
};

/// A file of tasks is a JSON object: "format" is "tavi-history", "version" is 1, and "calculations" holds the
/// records as they are stored, newest first, a date as {"$date": milliseconds since 1970 UTC}.
constexpr qsizetype longestHistoryFile = 64 << 20;  ///< Bytes.
constexpr qsizetype mostImportedCalculations = 250'000;

QByteArray historyFile(const QList<Calculation>& calculations);

/// The records of such a file, all of them or none: each of the fields that it knows must be of its type, and
/// no longer than what a task may have. A field that it does not know is passed over.
std::variant<QList<Calculation>, HistoryFileFault> readHistoryFile(const QByteArray& bytes);

/// The same of the file at the path.
std::variant<QList<Calculation>, HistoryFileFault> readHistoryFileAt(const QString& path);

}  // namespace tavi
