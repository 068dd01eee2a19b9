#pragma once

#include <QDateTime>
#include <QList>
#include <QMap>
#include <QString>
#include <QVariantMap>
#include <concepts>

namespace tavi {

/// A record that gives its stored fields as a map keyed by their names and can be built back from such a map.
template <typename Record>
concept PropertyReflectable = std::regular<Record> && std::constructible_from<Record, const QVariantMap&> &&
    requires(const Record& record) {
  { record.properties() } -> std::same_as<QVariantMap>;
};

/// One task as the user typed it, for the history and for refilling the fields; never the worked solution.
struct Calculation {
  QMap<QString, QString>
      inputParameters;               ///< Field identifier ("aTextField", "xTextField") to the text as typed.
  QString latexString;               ///< The task, as the history shows it.
  QList<QVariantMap> solutionSteps;  ///< Empty in every record written here.
  QVariantMap setupParameter;  ///< "inputCalculationSelection": mode, "appKey": text; empty in a snapshot.
  QDateTime calculatedAt;      ///< UTC, to the millisecond; invalid where it is not known.

  Calculation() = default;
  Calculation(QMap<QString, QString> inputs, QString latex, QList<QVariantMap> steps, QVariantMap setup);

  /// Takes each field that is present with exactly its type; the others keep their defaults.
  explicit Calculation(const QVariantMap& properties);

  /// The moment only where it is known: records without one are those of earlier versions.
  QVariantMap properties() const;

  bool operator==(const Calculation&) const = default;
};

static_assert(PropertyReflectable<Calculation>);

}  // namespace tavi
