#include "shell/history/table_rows.h"

#include <QLocale>
#include <utility>

#include "number/fatal_stop.h"
#include "platform/localization.h"

namespace tavi {

void TableRows::reload(QList<QDateTime> moments) {
  beginResetModel();
  moments_ = std::move(moments);
  endResetModel();
}

void TableRows::append(const QList<QDateTime>& moments) {
  if (moments.isEmpty()) return;
  const int first = rowCount();
  beginInsertRows({}, first, first + static_cast<int>(moments.size()) - 1);
  moments_ += moments;
  endInsertRows();
}

void TableRows::insert(int row, const QDateTime& moment) {
  if (row != rowCount()) requireRow(row);
  beginInsertRows({}, row, row);
  moments_.insert(row, moment);
  endInsertRows();
}

void TableRows::remove(int row) {
  requireRow(row);
  beginRemoveRows({}, row, row);
  moments_.removeAt(row);
  endRemoveRows();
}

void TableRows::move(int from, int to) {
  requireRow(from);
  requireRow(to);
  if (from == to) return;
  // The model's own counting names the row before which the moved one is put in.
  beginMoveRows({}, from, from, {}, to > from ? to + 1 : to);
  moments_.move(from, to);
  endMoveRows();
}

int TableRows::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(moments_.size());
}

QVariant TableRows::data(const QModelIndex& index, int role) const {
  if (role != dayRole || !checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  return dayTitle(moments_[index.row()], QDate::currentDate());
}

void TableRows::requireRow(int row) const {
  if (row < 0 || row >= rowCount()) fatalStop("no such row in the table");
}

QString dayTitle(const QDateTime& moment, const QDate& today) {
  const QDate day = moment.toLocalTime().date();
  if (!day.isValid()) return localized("dayEarlier");
  if (day == today) return localized("dayToday");
  if (day == today.addDays(-1)) return localized("dayYesterday");
  // In the language of the other titles, which need not be the one that the system writes dates in.
  const QLocale own(QLocale().language(), QLocale().territory());
  const QLocale spoken(spokenLanguage());
  const QLocale& locale = spoken.language() == own.language() ? own : spoken;
  // A title begins with a capital, where a date in a sentence does not in every language.
  QString title = locale.toString(day, QLocale::LongFormat);
  return title.replace(0, 1, locale.toUpper(title.left(1)));
}

}  // namespace tavi
