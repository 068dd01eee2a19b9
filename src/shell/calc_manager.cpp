#include "shell/calc_manager.h"

#include <QDateTime>
#include <QHash>
#include <algorithm>
#include <functional>
#include <limits>
#include <utility>

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
  currentCalculation_ = stored(preferences::currentCalculation);
  currentSelectedCalculation_ = stored(preferences::currentSelectedCalculation);
}

QString CalcManager::persistKey() const {
  return QStringLiteral("tavi_1");
}

const Calculation& CalcManager::calculation(qsizetype index) const {
  requireIndex(index);
  return list().calculations[index];
}

// Does not wait for the rest of a list that is being read.
void CalcManager::addCalculation(const Calculation& calculation) {
  if (!list_) readAhead();
  List& list = begun();
  list.calculations.prepend(calculation);
  list.numbers.prepend(list.numbers.value(0) + 1);
  if (list.unread) ++list.added;
  save([&] {
    const auto number = userDefaults_.prependElement(preferences::calculations, calculation.properties());
    if (number) list.numbers.front() = *number;
    return number.has_value();
  });
}

StoredCalculations CalcManager::removeCalculation(qsizetype index) {
  requireIndex(index);
  const StoredCalculation removed{list().numbers.takeAt(index), list().calculations.takeAt(index)};
  save([&] { return userDefaults_.removeElement(preferences::calculations, removed.number); });
  return {removed};
}

void CalcManager::swapCalculations(qsizetype first, qsizetype second) {
  requireIndex(first);
  requireIndex(second);
  const Calculation firstCalculation = list().calculations[first];
  const Calculation secondCalculation = list().calculations[second];
  replace(second, firstCalculation);
  replace(first, secondCalculation);
}

void CalcManager::replace(qsizetype index, const Calculation& calculation) {
  list().calculations[index] = calculation;
  save([&] {
    return userDefaults_.replaceElement(preferences::calculations,
                                        {list().numbers[index], calculation.properties()});
  });
}

StoredCalculations CalcManager::clearCalculations() {
  StoredCalculations removed;
  removed.reserve(list().calculations.size());
  for (qsizetype i = 0; i < list().calculations.size(); ++i)
    removed.append({list().numbers[i], list().calculations[i]});
  list().calculations.clear();
  list().numbers.clear();
  saveCalculations();
  return removed;
}

qsizetype CalcManager::restoreCalculations(const StoredCalculations& removed) {
  qsizetype first = list().calculations.size();
  for (const StoredCalculation& each : removed) {
    const auto place = std::ranges::lower_bound(list().numbers, each.number, std::greater());
    const qsizetype index = place - list().numbers.begin();
    list().numbers.insert(index, each.number);
    list().calculations.insert(index, each.calculation);
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
  for (const Calculation& each : list().calculations) ++present[identity(each)];
  StoredCalculations appended;
  // Below all numbers that the store gives by itself, and so below those of what could be put back, too.
  qlonglong number = std::min<qlonglong>(list().numbers.isEmpty() ? 0 : list().numbers.last(), 1);
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
  for (qsizetype last = appended.size() - 1; last >= 0; --last) {  // The last ones go the fastest.
    const auto& [number, calculation] = appended[last];
    const auto place = std::ranges::lower_bound(list().numbers, number, std::greater());
    const qsizetype index = place - list().numbers.begin();
    if (place == list().numbers.end() || *place != number || list().calculations[index] != calculation)
      continue;
    list().numbers.removeAt(index);
    list().calculations.removeAt(index);
    numbers.append(number);
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

bool CalcManager::readAhead() {
  constexpr qsizetype piece = 1000;
  if (begun().unread) read(piece);
  return list_->unread.has_value();
}

// The list with as much as has been read.
CalcManager::List& CalcManager::begun() {
  if (!list_) {
    List begun;
    begun.isOurs = userDefaults_.holdsArray(preferences::calculations);
    begun.unread = std::numeric_limits<qlonglong>::max();
    list_ = std::move(begun);
  }
  return *list_;
}

void CalcManager::read(qsizetype most) {
  List& read = *list_;
  const auto take = [&read](const PreferenceStore::Element& element) {
    read.isOurs = read.isOurs && element.value.typeId() == QMetaType::QVariantMap;
    read.calculations.append(Calculation(element.value.toMap()));
    read.numbers.append(element.number);
  };
  read.unread = userDefaults_.readElements(preferences::calculations, *read.unread, most, take);
  if (read.unread || read.isOurs) return;
  userDefaults_.setAside(preferences::calculations);
  read.calculations.resize(read.added);
  read.numbers.resize(read.added);
  saveCalculations();
}

CalcManager::List& CalcManager::list() {
  if (begun().unread) read(std::numeric_limits<qsizetype>::max());
  return *list_;
}

void CalcManager::loadCalculations() {
  list_.reset();
  list();
}

void CalcManager::saveCalculations() {
  const auto first =
      userDefaults_.setArray(preferences::calculations, list().calculations.size(),
                             [this](qsizetype index) { return list().calculations[index].properties(); });
  isBehind_ = !first;
  if (!first) return;
  list().numbers.resize(list().calculations.size());
  std::ranges::generate(list().numbers, [number = *first]() mutable { return number--; });
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
  if (index < 0 || index >= list().calculations.size())
    fatalStop("no calculation at this index of the history");
}

}  // namespace tavi
