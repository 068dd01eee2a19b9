#include "shell/history_file.h"

#include <QFile>
#include <algorithm>

#include "platform/preference_codec.h"

namespace tavi {
namespace {

const QString formatName = QStringLiteral("tavi-history");
constexpr qlonglong version = 1;
constexpr qsizetype longestText = 100'000;

bool isShortText(const QVariant& value) {
  return value.typeId() == QMetaType::QString && value.toString().size() <= longestText;
}
bool isShortTextOrNumber(const QVariant& value) {
  return isShortText(value) || value.typeId() == QMetaType::LongLong;
}
bool isDate(const QVariant& value) {
  return value.typeId() == QMetaType::QDateTime;
}
bool isObject(const QVariant& value) {
  return value.typeId() == QMetaType::QVariantMap;
}
template <bool (*isRight)(const QVariant&)>
bool isObjectOf(const QVariant& value) {
  return isObject(value) && std::ranges::all_of(value.toMap(), isRight);
}
bool isListOfObjects(const QVariant& value) {
  return value.typeId() == QMetaType::QVariantList && std::ranges::all_of(value.toList(), isObject);
}

struct Field {
  QLatin1StringView key;
  bool (*isRight)(const QVariant& value);
};
constexpr auto fields =
    std::to_array<Field>({{QLatin1StringView("inputParameters"), isObjectOf<isShortText>},
                          {QLatin1StringView("latexString"), isShortText},
                          {QLatin1StringView("solutionSteps"), isListOfObjects},
                          {QLatin1StringView("setupParameter"), isObjectOf<isShortTextOrNumber>},
                          {QLatin1StringView("calculatedAt"), isDate}});

bool isRecord(const QVariant& value) {
  const QVariantMap record = value.toMap();
  return isObject(value) && std::ranges::all_of(fields, [&record](const Field& field) {
           const auto found = record.constFind(field.key);
           return found == record.constEnd() || field.isRight(*found);
         });
}

/// The value without the array that its encoding wraps it into.
QByteArray json(const QVariant& value) {
  const QByteArray wrapped = encodePreference(value);
  return wrapped.mid(1, wrapped.size() - 2);
}

}  // namespace

QByteArray historyFile(const QList<Calculation>& calculations) {
  QByteArray bytes =
      "{\"format\":" + json(formatName) + ",\"version\":" + json(version) + ",\"calculations\":[";
  const char* separator = "\n";
  for (const Calculation& calculation : calculations) {
    bytes += separator + json(calculation.properties());
    separator = ",\n";
  }
  return bytes += "\n]}\n";
}

std::variant<QList<Calculation>, HistoryFileFault> readHistoryFile(const QByteArray& bytes) {
  if (bytes.size() > longestHistoryFile) return HistoryFileFault::tooLarge;
  // Of this map, an entry that is wrong anywhere is left out as a whole.
  const std::optional<QVariant> file = decodePreference('[' + bytes + ']');
  if (!file || !isObject(*file)) return HistoryFileFault::noHistory;
  const QVariantMap map = file->toMap();
  const QVariant records = map.value(QStringLiteral("calculations"));
  if (map.value(QStringLiteral("format")) != formatName || map.value(QStringLiteral("version")) != version ||
      records.typeId() != QMetaType::QVariantList)
    return HistoryFileFault::noHistory;
  const QVariantList list = records.toList();
  if (list.size() > mostImportedCalculations) return HistoryFileFault::tooLarge;
  if (!std::ranges::all_of(list, isRecord)) return HistoryFileFault::noHistory;
  QList<Calculation> calculations;
  calculations.reserve(list.size());
  for (const QVariant& record : list) calculations.append(Calculation(record.toMap()));
  return calculations;
}

std::variant<QList<Calculation>, HistoryFileFault> readHistoryFileAt(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return HistoryFileFault::unreadable;
  // One byte more than there may be tells of a file that is too large, whatever it says of itself.
  const QByteArray bytes = file.read(longestHistoryFile + 1);
  if (file.error() != QFileDevice::NoError) return HistoryFileFault::unreadable;
  return readHistoryFile(bytes);
}

}  // namespace tavi
