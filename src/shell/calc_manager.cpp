#include "shell/calc_manager.h"

#include <QDateTime>
#include <QHash>
#include <algorithm>
#include <functional>

#include "number/fatal_stop.h"
#include "platform/preference_codec.h"
#include "platform/preferences.h"

namespace tavi {
namespace {

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
  numbers_.prepend(numbers_.value(0) + 1);
  save([&] {
    const auto number = userDefaults_.prependElement(preferences::calculations, calculation.properties());
    if (number) numbers_.front() = *number;
    return number.has_value();
  });
}

StoredCalculations CalcManager::removeCalculation(qsizetype index) {
  requireIndex(index);
  const StoredCalculation removed{numbers_.takeAt(index), calculations_.takeAt(index)};
  save([&] { return userDefaults_.removeElement(preferences::calculations, removed.number); });
  return {removed};
}

void CalcManager::swapCalculations(qsizetype first, qsizetype second) {
  requireIndex(first);
  requireIndex(second);
  const Calculation firstCalculation = calculations_[first];
  const Calculation secondCalculation = calculations_[second];
  replace(second, firstCalculation);
  replace(first, secondCalculation);
}

void CalcManager::replace(qsizetype index, const Calculation& calculation) {
  calculations_[index] = calculation;
  save([&] {
    return userDefaults_.replaceElement(preferences::calculations,
                                        {numbers_[index], calculation.properties()});
  });
}

StoredCalculations CalcManager::clearCalculations() {
  StoredCalculations removed;
  removed.reserve(calculations_.size());
  for (qsizetype i = 0; i < calculations_.size(); ++i) removed.append({numbers_[i], calculations_[i]});
  calculations_.clear();
  saveCalculations();
  return removed;
}

qsizetype CalcManager::restoreCalculations(const StoredCalculations& removed) {
  qsizetype first = calculations_.size();
  for (const StoredCalculation& each : removed) {
    const auto place = std::ranges::lower_bound(numbers_, each.number, std::greater());
    const qsizetype index = place - numbers_.begin();
    numbers_.insert(index, each.number);
    calculations_.insert(index, each.calculation);
    first = std::min(first, index);
  }
  save([&] {
    return userDefaults_.restoreElements(preferences::calculations, removed.size(), [&](qsizetype index) {
      return PreferenceStore::Element{removed[index].number, removed[index].calculation.properties()};
    });
  });
  return first;
}

StoredCalculations CalcManager::appendCalculations(const QList<Calculation>& calculations) {
  const auto identity = [](const Calculation& each) { return encodePreference(each.properties()); };
  QHash<QByteArray, qsizetype> present;
  for (const Calculation& each : calculations_) ++present[identity(each)];
  StoredCalculations appended;
  // Below all numbers that the store gives by itself, and so below those of what could be put back, too.
  qlonglong number = std::min<qlonglong>(numbers_.isEmpty() ? 0 : numbers_.last(), 1);
  for (const Calculation& each : calculations) {
    qsizetype& known = present[identity(each)];
    if (known > 0)
      --known;
    else
      appended.append({--number, each});
  }
  if (!appended.isEmpty()) restoreCalculations(appended);
  return appended;
}

void CalcManager::withdrawCalculations(const StoredCalculations& appended) {
  QList<qlonglong> numbers;
  for (auto each = appended.rbegin(); each != appended.rend(); ++each) {  // The last ones go the fastest.
    const auto place = std::ranges::lower_bound(numbers_, each->number, std::greater());
    const qsizetype index = place - numbers_.begin();
    if (place == numbers_.end() || *place != each->number || calculations_[index] != each->calculation)
      continue;
    numbers_.removeAt(index);
    calculations_.removeAt(index);
    numbers.append(each->number);
  }
  save([&] { return userDefaults_.removeElements(preferences::calculations, numbers); });
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
  calculations_.clear();
  numbers_.clear();
  bool isOurs = true;
  const auto take = [&](const PreferenceStore::Element& element) {
    isOurs = isOurs && element.value.typeId() == QMetaType::QVariantMap;
    calculations_.append(Calculation(element.value.toMap()));
    numbers_.append(element.number);
  };
  if (userDefaults_.readElements(preferences::calculations, take) && isOurs) return;
  userDefaults_.setAside(preferences::calculations);
  calculations_.clear();
  saveCalculations();
}

void CalcManager::saveCalculations() {
  const auto first =
      userDefaults_.setArray(preferences::calculations, calculations_.size(),
                             [this](qsizetype index) { return calculations_[index].properties(); });
  isBehind_ = !first;
  if (!first) return;
  numbers_.resize(calculations_.size());
  std::ranges::generate(numbers_, [number = *first]() mutable { return number--; });
}

// A store that has refused a change is given the whole list, then and at the next changes, until it takes it.
void CalcManager::save(const std::function<bool()>& change) {
  if (isBehind_ || !change()) saveCalculations();
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
