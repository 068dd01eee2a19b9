#pragma once

#include <QAbstractListModel>
#include <QDateTime>

namespace tavi {

/// The rows of a table as a list for QML. It knows their days only: the table's controller fills each cell
/// when it comes into view.
class TableRows : public QAbstractListModel {
  Q_OBJECT

 public:
  /// The title of a row's day, under the name "day".
  enum Role { dayRole = Qt::UserRole };

  /// Makes all rows anew, each with its moment or an invalid one.
  void reload(QList<QDateTime> moments);
  void append(const QList<QDateTime>& moments);

  /// Puts one row in, takes one away or moves it to where it shall stand afterwards. The cells of the others
  /// stay as they are. A row outside the table is a fatal stop.
  void insert(int row, const QDateTime& moment);
  void remove(int row);
  void move(int from, int to);

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QHash<int, QByteArray> roleNames() const override { return {{dayRole, "day"}}; }

 private:
  void requireRow(int row) const;

  QList<QDateTime> moments_;
};

/// What the day of a moment is called today: by a word, or as the user's locale writes dates. What has none
/// is from earlier days.
QString dayTitle(const QDateTime& moment, const QDate& today);

}  // namespace tavi
