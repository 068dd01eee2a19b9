#include "shell/calculation.h"

#include <algorithm>

namespace tavi {
namespace {

// Literals as QString, since ten thousand records would each make their own.
const QString inputParametersKey = QStringLiteral("inputParameters");
const QString latexStringKey = QStringLiteral("latexString");
const QString solutionStepsKey = QStringLiteral("solutionSteps");
const QString setupParameterKey = QStringLiteral("setupParameter");
const QString calculatedAtKey = QStringLiteral("calculatedAt");

bool isText(const QVariant& value) {
  return value.typeId() == QMetaType::QString;
}
bool isMap(const QVariant& value) {
  return value.typeId() == QMetaType::QVariantMap;
}
bool isList(const QVariant& value) {
  return value.typeId() == QMetaType::QVariantList;
}

QMap<QString, QString> texts(const QVariant& value) {
  const QVariantMap map = value.toMap();
  if (!isMap(value) || !std::ranges::all_of(map, isText)) return {};
  QMap<QString, QString> result;
  for (auto entry = map.begin(); entry != map.end(); ++entry) result.insert(entry.key(), entry->toString());
  return result;
}

QList<QVariantMap> maps(const QVariant& value) {
  const QVariantList list = value.toList();
  if (!isList(value) || !std::ranges::all_of(list, isMap)) return {};
  QList<QVariantMap> result;
  for (const QVariant& element : list) result.append(element.toMap());
  return result;
}

}  // namespace

Calculation::Calculation(QMap<QString, QString> inputs, QString latex, QList<QVariantMap> steps,
                         QVariantMap setup)
    : inputParameters(std::move(inputs)),
      latexString(std::move(latex)),
      solutionSteps(std::move(steps)),
      setupParameter(std::move(setup)) {}

Calculation::Calculation(const QVariantMap& properties)
    : inputParameters(texts(properties.value(inputParametersKey))),
      solutionSteps(maps(properties.value(solutionStepsKey))) {
  if (const QVariant latex = properties.value(latexStringKey); isText(latex)) latexString = latex.toString();
  if (const QVariant setup = properties.value(setupParameterKey); isMap(setup))
    setupParameter = setup.toMap();
  if (const QVariant date = properties.value(calculatedAtKey); date.typeId() == QMetaType::QDateTime)
    calculatedAt = date.toDateTime();
}

QVariantMap Calculation::properties() const {
  QVariantMap inputs;
  for (auto entry = inputParameters.begin(); entry != inputParameters.end(); ++entry)
    inputs.insert(entry.key(), *entry);
  QVariantMap properties{{inputParametersKey, inputs},
                         {latexStringKey, latexString},
                         {solutionStepsKey, QVariantList(solutionSteps.begin(), solutionSteps.end())},
                         {setupParameterKey, setupParameter}};
  if (calculatedAt.isValid()) properties.insert(calculatedAtKey, calculatedAt);
  return properties;
}

}  // namespace tavi
