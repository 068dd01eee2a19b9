#include "shell/calc_manager.h"

#include <QDateTime>
#include <algorithm>

#include "number/fatal_stop.h"
#include "platform/preferences.h"

namespace tavi {
namespace {

bool isRecord(const QVariant& value) {
  return value.typeId() == QMetaType::QVariantMap;
}

Calculation sample() {
  return {{{"aTextField", "-2"}, {"xTextField", "3/2"}},
          QStringLiteral(R"(\frac{3}{2}^{-2})"),
          {},
          {{"inputCalculationSelection", 0}, {"appKey", "QRX"}}};
}

}  // namespace

CalcManager& CalcManager::shared() {
  static CalcManager manager(PreferenceStore::standard());
  return manager;
}

CalcManager::CalcManager(PreferenceStore& userDefaults) : userDefaults_(userDefaults) {
  loadCalculations();
  currentCalculation_ = stored(preferences::currentCalculation);
  currentSelectedCalculation_ = stored(preferences::currentSelectedCalculation);
}

QString CalcManager::persistKey() const {
  return QStringLiteral("tavi_1");
}

const Calculation& CalcManager::calculation(qsizetype index) const {
  requireIndex(index);
  return calculations_[index];
}

void CalcManager::addCalculation(const Calculation& calculation) {
  calculations_.prepend(calculation);
  saveCalculations();
}

void CalcManager::removeCalculation(qsizetype index) {
  requireIndex(index);
  calculations_.removeAt(index);
  saveCalculations();
}

void CalcManager::swapCalculations(qsizetype first, qsizetype second) {
  requireIndex(first);
  requireIndex(second);
  const Calculation firstCalculation = calculations_[first];
  const Calculation secondCalculation = calculations_[second];
  calculations_[second] = firstCalculation;
  saveCalculations();
  calculations_[first] = secondCalculation;
  saveCalculations();
}

void CalcManager::clearCalculations() {
  userDefaults_.remove(preferences::calculations);
  calculations_.clear();
  saveCalculations();
}

void CalcManager::setCurrentCalculation(std::optional<Calculation> calculation) {
  currentCalculation_ = std::move(calculation);
  persistSelection();
}

void CalcManager::setCurrentSelectedCalculation(std::optional<Calculation> calculation) {
  currentSelectedCalculation_ = std::move(calculation);
  persistSelection();
}

void CalcManager::runFirstStartStep() {
  if (userDefaults_.contains(preferences::firstAppStartAt)) return;
  userDefaults_.setValue(preferences::firstAppStartAt, QDateTime::currentDateTimeUtc());
  clearCalculations();
  addCalculation(sample());
}

void CalcManager::loadCalculations() {
  const QVariantList records = userDefaults_.value(preferences::calculations);
  if (records.isEmpty() || !std::ranges::all_of(records, isRecord)) return clearCalculations();
  calculations_.clear();
  calculations_.reserve(records.size());
  for (const QVariant& record : records) calculations_.append(Calculation(record.toMap()));
}

void CalcManager::saveCalculations() {
  userDefaults_.setArray(preferences::calculations, calculations_.size(),
                         [this](qsizetype index) { return calculations_[index].properties(); });
}

std::optional<Calculation> CalcManager::stored(const Preference<QVariantMap>& preference) const {
  const std::optional<QVariantMap> record = userDefaults_.find(preference);
  return record ? std::optional(Calculation(*record)) : std::nullopt;
}

// Whichever of the two was assigned, it is the picked record that is written: a snapshot ends with its run.
void CalcManager::persistSelection() {
  std::optional<QVariantMap> record;
  if (currentSelectedCalculation_) record = currentSelectedCalculation_->properties();
  userDefaults_.setValue(preferences::currentSelectedCalculation, record);
}

void CalcManager::requireIndex(qsizetype index) const {
  if (index < 0 || index >= calculations_.size()) fatalStop("no calculation at this index of the history");
}

}  // namespace tavi
