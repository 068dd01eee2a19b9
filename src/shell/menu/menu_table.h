#pragma once

#include <QAbstractListModel>
#include <QList>
#include <QString>

namespace tavi {

/// The rows of the side menu as a list for QML, all sections in a row.
class MenuTable : public QAbstractListModel {
  Q_OBJECT

 public:
  struct Row {
    int section = 0;
    int rowInSection = 0;
    QString title;
  };

  /// Makes all rows anew.
  void reload(QList<Row> rows);

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QHash<int, QByteArray> roleNames() const override;

 private:
  enum Role { sectionRole = Qt::UserRole, rowInSectionRole, titleRole };

  QList<Row> rows_;
};

}  // namespace tavi
