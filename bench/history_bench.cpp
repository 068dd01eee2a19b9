// What a key of a search costs in a long history.
#include <QGuiApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include "platform/localization.h"
#include "shell/history/history_search.h"
#include "shell/history_file.h"

namespace {

using namespace tavi;

constexpr std::chrono::hours unlimited{1};

/// Powers and roots by turns, each with numbers of its own.
Calculation task(qsizetype number) {
  const QString text = QString::number(number);
  if (number % 2 == 0)
    return {{{"aTextField", "-2"}, {"xTextField", text + "/7"}},
            QStringLiteral(R"(\frac{%1}{7}^{-2})").arg(number),
            {},
            {{"inputCalculationSelection", 0LL}, {"appKey", "QRX"}}};
  return {{{"aTextField", "3"}, {"xTextField", text}},
          QStringLiteral(R"(\sqrt[3]{%1})").arg(number),
          {},
          {{"inputCalculationSelection", 1LL}, {"appKey", "QRX"}}};
}

/// A store with as many records as the argument says.
class FilledStore {
 public:
  explicit FilledStore(const benchmark::State& state) {
    QList<Calculation> records;
    for (qsizetype i = 0; i < state.range(0); ++i) records.append(task(i));
    manager_.appendCalculations(records);
  }

  const CalcManager& manager() const { return manager_; }

 private:
  QTemporaryDir folder_;
  PreferenceStore store_{folder_.filePath("preferences.sqlite")};
  CalcManager manager_{store_};
};

/// What is done once, in pieces, when the field is gone to.
void prepareSearch(benchmark::State& state) {
  const FilledStore filled(state);
  for (auto iteration : state) {
    HistorySearch search(filled.manager());
    search.goOn(unlimited);
    benchmark::DoNotOptimize(search.isThrough());
  }
}
BENCHMARK(prepareSearch)->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);

/// One key: rare, everywhere, in words.
void searchKey(benchmark::State& state, const char* query) {
  const FilledStore filled(state);
  HistorySearch search(filled.manager());
  search.goOn(unlimited);
  for (auto iteration : state) {
    search.begin(query);
    search.goOn(unlimited);
    benchmark::DoNotOptimize(search.found().size());
  }
}
BENCHMARK_CAPTURE(searchKey, rare, "99999")->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(searchKey, common, "7")->Arg(10'000)->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(searchKey, words, "dritte wurzel 7")
    ->Arg(10'000)
    ->Arg(100'000)
    ->Unit(benchmark::kMillisecond);

void writeFile(benchmark::State& state) {
  const FilledStore filled(state);
  for (auto iteration : state) benchmark::DoNotOptimize(historyFile(filled.manager().calculations()).size());
}
BENCHMARK(writeFile)->Arg(100'000)->Unit(benchmark::kMillisecond);

void readFile(benchmark::State& state) {
  const FilledStore filled(state);
  const QByteArray bytes = historyFile(filled.manager().calculations());
  for (auto iteration : state) benchmark::DoNotOptimize(readHistoryFile(bytes).index());
}
BENCHMARK(readFile)->Arg(100'000)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  loadTranslations({"de"});
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
