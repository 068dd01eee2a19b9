#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>
#include <optional>

namespace tavi {

/// What reading a property list gave: the value, or what was wrong and where.
struct PropertyList {
  std::optional<QVariant> value;
  QString error;
};

/// Reads an XML property list: dict as QVariantMap, array as QVariantList, string, integer (qlonglong), real
/// (double), true and false, date (QDateTime in UTC), data (QByteArray). Nests at most 64 deep.
PropertyList readPropertyList(const QByteArray& xml);

}  // namespace tavi
