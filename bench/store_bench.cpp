#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include "shell/calc_manager.h"

namespace {

using namespace tavi;

Calculation task(qsizetype number) {
  const QString base = QString::number(number) + "/7";
  return {{{"aTextField", "-2"}, {"xTextField", base}},
          QString(R"(\frac{%1}{7}^{-2})").arg(number),
          {},
          {{"inputCalculationSelection", 0}, {"appKey", "QRX"}}};
}

/// A store in a file of its own with as many records as the argument says.
class FilledStore {
 public:
  explicit FilledStore(const benchmark::State& state) {
    QVariantList records;
    for (qsizetype i = 0; i < state.range(0); ++i) records.append(task(i).properties());
    PreferenceStore(path()).setValue("Calculations", records);
  }

  QString path() const { return folder_.filePath("preferences.sqlite"); }

 private:
  QTemporaryDir folder_;
};

/// What the records add to a start: opening the file and loading the list.
void startStore(benchmark::State& state) {
  const FilledStore filled(state);
  for (auto iteration : state) {
    PreferenceStore store(filled.path());
    const CalcManager manager(store);
    benchmark::DoNotOptimize(manager.calculations().size());
  }
}
BENCHMARK(startStore)->Arg(0)->Arg(1'000)->Arg(10'000)->Unit(benchmark::kMillisecond);

/// One record more, on the disk; the list does not grow over the run.
void addCalculation(benchmark::State& state) {
  const FilledStore filled(state);
  PreferenceStore store(filled.path());
  CalcManager manager(store);
  for (auto iteration : state) {
    manager.addCalculation(task(0));
    state.PauseTiming();
    manager.removeCalculation(0);
    state.ResumeTiming();
  }
}
BENCHMARK(addCalculation)->Arg(0)->Arg(1'000)->Arg(10'000)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
