#include "solution/share/step_records.h"

#include <QVariantMap>

namespace tavi {

QVariantList stepRecords(const SolutionSteps& steps) {
  QVariantList records;
  for (const SolutionStep& step : steps) {
    QVariantMap record;
    const auto enter = [&record](const char* key, const std::optional<std::string>& text) {
      if (text) record.insert(QString::fromLatin1(key), QString::fromStdString(*text));
    };
    enter("title", step.title);
    enter("latexString", step.latexString);
    enter("messageString", step.messageString);
    records.append(record);
  }
  return records;
}

}  // namespace tavi
